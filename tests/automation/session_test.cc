#include "automation/session.h"

#include <sstream>

#include "automation/json_variant.h"
#include "testutil.h"
#include "zerbal/presentador.h"

namespace zerbal::automation {
namespace {

using nlohmann::json;

Variant RoundTrip(const Variant& value) {
  return FromJson(json::parse(ToJson(value).dump()));
}

TEST(JsonVariantTest, EveryKindSurvivesTheTrip) {
  Variant list(Array(-2, 1));
  list(-2) = "ñandú \"quoted\"\nline";
  list(-1) = int16_t{-32768};
  list(0) = uint8_t{255};
  list(1) = Variant::Null();
  Variant table(Array(1, 3, 5, 6));
  for (int32_t i = 1; i <= 3; ++i) table(i, 6) = i * 1.5;
  table(2, 5) = list;  // nested
  const Variant values[] = {Variant(),   Variant::Null(), int16_t{7},  INT32_MIN, uint8_t{0},
                            true,        false,           -1234.0,     0.1,       1e300,
                            "",          "´'",            list,        table};
  for (const Variant& value : values) {
    const Variant back = RoundTrip(value);
    EXPECT_EQ(back, value) << DebugString(value) << " came back as " << DebugString(back);
  }
  // The first subscript varies fastest: (1,5) (2,5) (3,5) (1,6) ...
  EXPECT_EQ(ToJson(table)["elements"][1], ToJson(list));
  EXPECT_EQ(ToJson(table)["elements"][3], ToJson(Variant(1.5)));
}

TEST(JsonVariantTest, PlainValuesAndBadVariants) {
  EXPECT_EQ(FromJson(json::parse("\"x\"")), Variant("x"));
  EXPECT_EQ(FromJson(json::parse("12")), Variant(12));
  EXPECT_EQ(FromJson(json::parse("3000000000")), Variant(3e9));
  EXPECT_EQ(FromJson(json::parse("2.5")), Variant(2.5));
  EXPECT_EQ(FromJson(json::parse("true")), Variant(true));
  EXPECT_TRUE(FromJson(json::parse("null")).IsNull());
  const struct {
    const char* text;
    int32_t error;
  } rows[] = {
      {R"({"type":"Long","value":"x"})", 5},
      {R"({"type":"Long","value":3000000000})", 6},
      {R"({"type":"Integer","value":40000})", 6},
      {R"({"type":"Byte","value":-1})", 6},
      {R"({"type":"Nope"})", 5},
      {R"({"type":"String"})", 5},
      {R"({"type":"Array","bounds":[[0,1]],"elements":[1]})", 5},
      {R"({"type":"Array","bounds":[[0,1],[0,1],[0,1]],"elements":[]})", 5},
      {R"({"type":"Array","bounds":[[0,1000000000]],"elements":[]})", 5},
      {R"({"type":"Array","bounds":[[0,16777215]],"elements":[]})", 5},
      {R"({"type":"Array","bounds":[[-2147483648,2147483647],[-2147483648,2147483647]],"elements":[]})", 5},
      {R"({"type":"Array","bounds":[[0,2147483647]],"elements":[1]})", 5},
      {R"({"type":"Long","value":18446744073709549614})", 6},
      {R"({"type":"Integer","value":1e10})", 6},
      {R"({"type":"Long","value":1.5})", 5},
      {R"([1,2])", 5},
  };
  for (const auto& row : rows) {
    EXPECT_RAISES(FromJson(json::parse(row.text)), row.error) << row.text;
  }
}

TEST(JsonVariantTest, BoundsAtTheEndsOfTheirRange) {
  const Variant last = FromJson(json::parse(R"({"type":"Array","bounds":[[2147483647,2147483647]],
                                                "elements":["x"]})"));
  EXPECT_EQ(last(INT32_MAX), Variant("x"));
  const Variant empty = FromJson(json::parse(R"({"type":"Array",
      "bounds":[[0,-1],[0,2147483647]],"elements":[]})"));  // no element to read, however long
  EXPECT_EQ(empty.AsArray().UBound(2), INT32_MAX);
  EXPECT_TRUE(empty.AsArray().Elements().empty());
}

class SessionTest : public test::DatabaseTest {
 protected:
  json Ask(const std::string& request) {
    const std::string line = session_.Answer(request);
    EXPECT_EQ(line.find('\n'), std::string::npos);
    return json::parse(line);
  }
  static int32_t ErrorNumber(const json& answer) {
    return answer.at("ok") ? 0 : answer.at("error").at("number").get<int32_t>();
  }
  Session session_;
};

TEST_F(SessionTest, CreateCallAndRelease) {
  const json created = Ask(R"({"id": "a", "op": "create", "class": "brevandol.cmiscelaneos"})");
  EXPECT_EQ(created["id"], "a");
  const int64_t handle = created.at("handle").get<int64_t>();
  const json answer = Ask(R"({"id": 2, "op": "call", "handle": )" + std::to_string(handle) +
                          R"(, "name": "ValidaNifCif", "args": ["54362315", true]})");
  EXPECT_EQ(answer["result"], ToJson(Variant(true)));
  EXPECT_EQ(answer["args"][0], ToJson(Variant("54362315")));
  EXPECT_EQ(answer["id"], 2);
  EXPECT_TRUE(Ask(R"({"op": "members", "handle": 1})")["result"].size() == 2);
  EXPECT_TRUE(Ask(R"({"op": "release", "handle": 1})")["ok"]);
  EXPECT_EQ(ErrorNumber(Ask(R"({"op": "release", "handle": 1})")), 91);
  EXPECT_EQ(Ask(R"({"op": "create", "class": "Brevandol.cMiscelaneos"})")["handle"], 2)
      << "handles are not reused";
}

TEST_F(SessionTest, ErrorsAreAnsweredAndTheSessionGoesOn) {
  Ask(R"({"op": "create", "class": "Brevandol.cMiscelaneos"})");
  const struct {
    const char* request;
    int32_t error;
  } rows[] = {
      {"not json", 5},
      {"[1]", 5},
      {R"({"id": 9})", 5},
      {R"({"op": "jump"})", 5},
      {R"({"op": "create", "class": "zerbal.cNada"})", 429},
      {R"({"op": "get", "handle": 77, "name": "x"})", 91},
      {R"({"op": "get", "handle": "1", "name": "x"})", 5},
      {R"({"op": "call", "handle": 1, "name": "Volar"})", 438},
      {R"({"op": "call", "handle": 1, "name": "ValidaNifCif"})", 450},
      {R"({"op": "call", "handle": 1, "name": "ValidaNifCif", "args": [null]})", 13},
      {R"({"op": "call", "handle": 1, "name": "ValidaNifCif", "args": "x"})", 5},
      {R"({"op": "let", "handle": 1, "name": "ValidaNifCif"})", 5},
  };
  for (const auto& row : rows) {
    const json answer = Ask(row.request);
    EXPECT_EQ(ErrorNumber(answer), row.error) << row.request << " -> " << answer.dump();
  }
  const json error = Ask(R"({"id": [1], "op": "create", "class": "x"})");
  EXPECT_EQ(error["id"], json::array({1}));
  EXPECT_FALSE(error["error"]["source"].get<std::string>().empty());
  EXPECT_TRUE(Ask(R"({"op": "classes"})")["ok"]) << "still serving";
}

std::string Repeat(std::string_view text, size_t times) {
  std::string all;
  all.reserve(text.size() * times);
  for (size_t k = 0; k < times; ++k) all += text;
  return all;
}

// Lines built to crash, hang or exhaust the bridge: each gets its answer.
TEST_F(SessionTest, HostileRequestsAreAnswered) {
  Ask(R"({"op": "create", "class": "Brevandol.cMiscelaneos"})");
  const std::string let = R"({"id": 7, "op": "let", "handle": 1, "name": "x", "value": )";
  const std::string nested_arrays = Repeat(R"({"type":"Array","bounds":[[0,0]],"elements":[)", 23000) +
                                    "1" + Repeat("]}", 23000);
  const struct {
    const char* rule;
    std::string request;
    int32_t error;
  } rows[] = {
      {"an id nested 75,000 levels",
       R"({"op": "classes", "id": )" + Repeat("[", 75000) + Repeat("]", 75000) + "}", 5},
      {"23,000 nested arrays", let + nested_arrays + "}", 5},
      {"a bad value nested deep", let + R"({"type": "Nope", "value": )" + Repeat("[", 75000) +
                                      Repeat("]", 75000) + "}}", 5},
      {"a Long past 64 bits", let + R"({"type": "Long", "value": 18446744073709549614}})", 6},
      {"a number past a double", let + Repeat("9", 400) + "}", 6},
      {"more values than a request may hold",
       let + R"({"type": "Array", "bounds": [[0, 1048576]], "elements": [)" +
           Repeat("0,", 1048576) + "0]}}", 5},
  };
  for (const auto& row : rows) {
    const json answer = Ask(row.request);
    EXPECT_EQ(ErrorNumber(answer), row.error) << row.rule << " -> " << answer.dump().substr(0, 300);
  }
  EXPECT_EQ(ErrorNumber(Ask(let + "1}")), 438) << "the id comes back when the request is sound";
}

TEST_F(SessionTest, ServeAnswersEachLineAndDropsOneTooLongToKeep) {
  const std::string classes = R"({"id": 1, "op": "classes"})";
  std::istringstream in(classes + "\n \r\n" + std::string(kMaxLineBytes, ' ') + classes + "\n" +
                        R"({"id": 3, "op": "classes"})");  // the last line has no end
  std::ostringstream out;
  session_.Serve(in, out);
  std::vector<json> answers;
  std::istringstream lines(out.str());
  for (std::string line; std::getline(lines, line);) answers.push_back(json::parse(line));
  ASSERT_EQ(answers.size(), 3u) << "a blank line gets no answer";
  EXPECT_EQ(answers[0]["id"], 1);
  EXPECT_EQ(ErrorNumber(answers[1]), 5) << "the long line, although its end is a sound request";
  EXPECT_TRUE(answers[1]["id"].is_null());
  EXPECT_EQ(answers[2]["id"], 3);
}

TEST_F(SessionTest, BuffersComeBackChangedAndLibraryErrorsUnchanged) {
  Ask(R"({"op": "create", "class": "zerbal.cPresentador"})");
  Ask(R"({"op": "let", "handle": 1, "name": "mdbmod", "value": )" + json(mod_).dump() + "}");
  const json saved = Ask(R"({"op": "call", "handle": 1, "name": "GuardarPresentador", "args": [)" +
                         ToJson(test::PersonBuffer(0, "B20456786", "Irizar")).dump() + "]}");
  EXPECT_EQ(saved["result"], ToJson(Variant(1))) << saved.dump();

  const json loaded =
      Ask(R"({"op": "call", "handle": 1, "name": "cargarpresentador", "args": [null]})");
  cPresentador direct;
  direct.mdbmod(mod_);
  Variant expected;
  direct.CargarPresentador(expected);
  EXPECT_EQ(loaded["args"][0], ToJson(expected));
  EXPECT_EQ(loaded["args"][0]["elements"][2], ToJson(Variant("Irizar")));
  EXPECT_EQ(loaded["result"], ToJson(Variant()));

  Ask(R"({"op": "let", "handle": 1, "name": "mdbmod", "value": )" +
      json((dir_ / "missing.db").string()).dump() + "}");
  direct.mdbmod((dir_ / "missing.db").string());
  const std::optional<Error> error = test::ErrorOf([&] { direct.EliminarPresentador(1); });
  ASSERT_TRUE(error);
  const json failed =
      Ask(R"({"op": "call", "handle": 1, "name": "EliminarPresentador", "args": [1]})");
  EXPECT_EQ(failed["error"], json({{"number", error->Number()},
                                   {"source", error->Source()},
                                   {"description", error->Description()}}));
  EXPECT_EQ(error->Number(), 3024);
}

TEST_F(SessionTest, AnObjectResultGetsAHandleOfItsOwn) {
  Ask(R"({"op": "create", "class": "zerbal.cConexionDAO"})");
  Ask(R"({"op": "let", "handle": 1, "name": "mdb", "value": 0})");
  Ask(R"({"op": "call", "handle": 1, "name": "CrearWorkSpace"})");
  Ask(R"({"op": "call", "handle": 1, "name": "AbrirBD", "args": [)" + json(mod_).dump() + "]}");
  Ask(R"j({"op": "call", "handle": 1, "name": "execute",
          "args": ["INSERT INTO TPresentador (nombre) VALUES ('Irizar')"]})j");
  const json opened = Ask(R"({"op": "call", "handle": 1, "name": "openRecordset",
                               "args": ["SELECT nombre FROM TPresentador"]})");
  EXPECT_EQ(opened["result"], json({{"type", "Object"}, {"handle", 2}})) << opened.dump();
  EXPECT_EQ(Ask(R"({"op": "get", "handle": 2, "name": "RecordCount"})")["result"],
            ToJson(Variant(1)));

  // The connection's last member (members_test.cc holds the order).
  EXPECT_EQ(Ask(R"({"op": "members", "handle": 1})")["result"].back(),
            json({{"name", "openRecordset"}, {"kind", "method"}, {"required", 1}, {"optional", 1},
                  {"object", true}}));
  EXPECT_EQ(ErrorNumber(Ask(R"({"op": "call", "handle": 1, "name": "execute",
                                "args": [{"type": "Object", "handle": 2}]})")), 5)
      << "an object is never an argument";

  EXPECT_TRUE(Ask(R"({"op": "release", "handle": 1})")["ok"]);
  EXPECT_EQ(ErrorNumber(Ask(R"({"op": "get", "handle": 2, "name": "RecordCount"})")), 3420)
      << "the recordset is still there, closed with its connection";
  EXPECT_TRUE(Ask(R"({"op": "release", "handle": 2})")["ok"]);
}

}  // namespace
}  // namespace zerbal::automation
