// The key a save answers is the key of its own insert, however many other
// processes save into the same table at the same time.

#include <thread>

#include "child_session.h"
#include "testutil.h"

namespace zerbal {
namespace {

class KeysTest : public test::DatabaseTest {};

TEST_F(KeysTest, SavesFromSeveralProcessesEachGetTheirOwnKey) {
  constexpr int kProcesses = 3;
  constexpr int kSaves = 150;
  struct Saved {
    std::string nif;
    int64_t key;
  };
  std::vector<std::vector<Saved>> saved(kProcesses);
  std::vector<std::thread> threads;
  for (int p = 0; p < kProcesses; ++p) {
    threads.emplace_back([&, p] {
      test::ChildSession child;
      child.Ask(R"({"id":1,"op":"create","class":"zerbal.cDeclarante"})");
      child.Ask(R"({"id":2,"op":"let","handle":1,"name":"mdbmod","value":")" + mod_ + "\"}");
      for (int n = 0; n < kSaves; ++n) {
        std::string nif = "P";
        nif.append(std::to_string(p)).append("N").append(std::to_string(n));
        const std::string answer = child.Ask(
            R"({"id":3,"op":"call","handle":1,"name":"GuardarDeclarante","args":[{"type":"Array",)"
            R"("bounds":[[0,17]],"elements":[0,")" + nif +
            R"(","Name","CL","Kalea",1,"","","","",20,"20005","Donostia",943,"","",0,""]}]})");
        const size_t at = answer.find(R"("result":{"type":"Long","value":)");
        saved[p].push_back({nif, at == std::string::npos ? -1 : std::stoll(answer.substr(at + 32))});
      }
    });
  }
  for (std::thread& t : threads) t.join();

  for (const auto& process : saved) {
    for (const Saved& s : process) {
      EXPECT_EQ(test::Rows(mod_, "SELECT dni_cifd FROM TDeclarante WHERE coddec = " +
                                     std::to_string(s.key)),
                (std::vector<std::vector<Variant>>{{s.nif}}))
          << s.nif << " answered key " << s.key;
    }
  }
  EXPECT_EQ(test::Rows(mod_, "SELECT count(*) FROM TDeclarante")[0][0],
            Variant(kProcesses * kSaves));
}

}  // namespace
}  // namespace zerbal
