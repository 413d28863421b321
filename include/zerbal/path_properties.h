#ifndef ZERBAL_PATH_PROPERTIES_H_
#define ZERBAL_PATH_PROPERTIES_H_

#include <string>
#include <utility>

namespace zerbal {

// The paths of the two databases, which the client sets on every public
// class before calling it (write-only properties).
class PathProperties {
 public:
  void mdbmod(std::string path) { mdbmod_ = std::move(path); }
  void mdblec(std::string path) { mdblec_ = std::move(path); }

 protected:
  std::string mdbmod_;
  std::string mdblec_;
};

}  // namespace zerbal

#endif  // ZERBAL_PATH_PROPERTIES_H_
