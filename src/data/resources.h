// Text files embedded at build time from resources/ (see
// cmake/ZerbalResources.cmake).

#ifndef ZERBAL_DATA_RESOURCES_H_
#define ZERBAL_DATA_RESOURCES_H_

#include <string_view>

namespace zerbal {

// The content of the resource file `name` ("data_schema.sql"); empty when
// there is none of that name.
std::string_view Resource(std::string_view name);

}  // namespace zerbal

#endif  // ZERBAL_DATA_RESOURCES_H_
