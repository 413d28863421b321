// A data database on a PostgreSQL server: several processes at once, and
// what opening refuses. Runs with ZERBAL_TEST_ENGINE=postgresql and a server
// in ZERBAL_TEST_PG (CTest's "pg." tests); skipped otherwise.

#include <fcntl.h>
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

#include <fstream>

#include "base/text.h"
#include "cli/import_file.h"
#include "data/connection.h"
#include "data/pg.h"
#include "fileformat/seleccion.h"
#include "testutil.h"
#include "upgrade/columnas.h"
#include "upgrade/copia_seguridad.h"
#include "zerbal/databases.h"
#include "zerbal/datos_generales.h"
#include "zerbal/traspaso.h"
#include "zerbal/declarado.h"
#include "zerbal/declarante.h"

extern char** environ;

namespace zerbal {
namespace {

using Rows = std::vector<std::vector<Variant>>;

constexpr int kProcesses = 4;
constexpr int kDeclarants = 5;     // per process
constexpr int kOperations = 40;    // per declarant
constexpr int kSaves = 60;  // per process, into one declaration

std::string Dni(int number) { return std::to_string(number) + "TRWAGMYFPDXBNJZSQVHLCKE"[number % 23]; }

std::string Env(const char* name) {
  const char* value = std::getenv(name);
  return value ? value : "";
}

// This test binary again, running the one child test `filter` with `env`
// added to its environment.
pid_t StartChild(const std::string& filter, const std::vector<std::string>& env) {
  std::vector<std::string> vars(env);
  for (char** e = environ; *e != nullptr; ++e) vars.emplace_back(*e);
  std::vector<char*> envp;
  for (std::string& v : vars) envp.push_back(v.data());
  envp.push_back(nullptr);
  std::string self = "/proc/self/exe";
  std::string arg = "--gtest_filter=" + filter;
  char* argv[] = {self.data(), arg.data(), nullptr};
  posix_spawn_file_actions_t actions;
  posix_spawn_file_actions_init(&actions);
  posix_spawn_file_actions_addopen(&actions, 1, "/dev/null", O_WRONLY, 0);
  pid_t pid = -1;
  const int rc = ::posix_spawn(&pid, "/proc/self/exe", &actions, nullptr, argv, envp.data());
  posix_spawn_file_actions_destroy(&actions);
  return rc == 0 ? pid : -1;
}

int WaitChild(pid_t pid) {
  int status = 0;
  if (pid < 0 || ::waitpid(pid, &status, 0) != pid) return -1;
  return WIFEXITED(status) ? WEXITSTATUS(status) : -1;
}

class ServerTest : public test::DatabaseTest {
 protected:
  void SetUp() override {
    if (!test::OnServer()) GTEST_SKIP() << "runs with ZERBAL_TEST_ENGINE=postgresql";
  }
  int64_t Count(const std::string& sql) { return test::Rows(mod_, sql)[0][0].AsLong(); }
};

// A file of its own for process `p`: declarants with their operations,
// each operation naming its declarant in its name.
std::string WriteFile(const test::TempDir& dir, int p) {
  const auto& writers = fileformat::WritersFor(2014);
  const std::string path = (dir / ("p" + std::to_string(p) + ".txt")).string();
  std::ofstream out(path, std::ios::binary);
  for (int d = 0; d < kDeclarants; ++d) {
    const std::string nif = Dni(10000000 + p * 100 + d);
    const Variant declarant = test::PersonBuffer(0, nif, "Declarante " + nif);
    out << Utf8ToWindows1252(writers.GenerarReg1(declarant, Variant::Null(), "E", 2014)) << "\r\n";
    for (int k = 0; k < kOperations; ++k) {
      const Variant op = test::Buffer({"1", "20", "", Dni(20000000 + k), "DE " + nif, "A", "1000", "0",
                                       "0", "", "", "", "250", "250", "250", "250", "0", "0", "0",
                                       "0", "0", "", "", "", "", "", "0"});
      out << Utf8ToWindows1252(writers.GenerarReg2(2014, op, declarant, "E")) << "\r\n";
    }
  }
  return path;
}

TEST_F(ServerTest, FourProcessesImportingAtOnceLoseNothingAndMixNoKeys) {
  std::vector<pid_t> children;
  for (int p = 0; p < kProcesses; ++p) {
    children.push_back(StartChild("ServerChild.Imports", {"ZERBAL_CHILD_DATA=" + mod_,
                                                          "ZERBAL_CHILD_LOOKUP=" + lec_,
                                                          "ZERBAL_CHILD_FILE=" + WriteFile(dir_, p)}));
  }
  int errors = 0;
  for (pid_t pid : children) errors += WaitChild(pid) == 0 ? 0 : 1;
  EXPECT_EQ(errors, 0) << "processes that failed or refused lines";
  const int64_t operations = kProcesses * kDeclarants * kOperations;
  EXPECT_EQ(Count("SELECT count(*) FROM TDeclarante"), kProcesses * kDeclarants) << "lost declarants";
  EXPECT_EQ(Count("SELECT count(*) FROM TDeclaraciones d JOIN TDeclarante t ON t.coddec = d.coddecr"),
            kProcesses * kDeclarants) << "declarations of the wrong or no declarant";
  EXPECT_EQ(Count("SELECT count(*) FROM tOperadores"), operations) << "lost operations";
  EXPECT_EQ(Count("SELECT count(*) FROM tOperadores o JOIN TDeclaraciones d ON d.coddecla = o.coddeclar "
                  "JOIN TDeclarante t ON t.coddec = d.coddecr WHERE o.razon = 'DE ' || t.dni_cifd"),
            operations) << "operations under another declarant's declaration";
}

TEST_F(ServerTest, TwoProcessesSavingIntoOneDeclarationEachReadTheirOwnKeys) {
  test::Exec(mod_, "INSERT INTO TDeclaraciones (coddecr, ejercicio, moneda) VALUES (1, 2014, 'E')");
  const pid_t a = StartChild("ServerChild.SavesOperations", {"ZERBAL_CHILD_DATA=" + mod_, "ZERBAL_CHILD_NAME=A"});
  const pid_t b = StartChild("ServerChild.SavesOperations", {"ZERBAL_CHILD_DATA=" + mod_, "ZERBAL_CHILD_NAME=B"});
  EXPECT_EQ(WaitChild(a), 0) << "a key read back that was not its own row, or an error";
  EXPECT_EQ(WaitChild(b), 0);
  EXPECT_EQ(Count("SELECT count(*) FROM tOperadores WHERE coddeclar = 1"), 2 * kSaves) << "lost rows";
}

TEST_F(ServerTest, WhatCannotBeOpenedIsANumberedErrorAndNothingIsCreated) {
  const std::string server = Env("ZERBAL_TEST_PG");
  const std::string empty = test::ServerDatabase::WithDatabase(mod_, "zerbal_test_none");
  test::ServerDatabase bare;  // a database without our tables
  test::Exec(server, "DO $$ BEGIN CREATE ROLE zerbal_pw LOGIN PASSWORD 'right'; "
                     "EXCEPTION WHEN duplicate_object THEN NULL; END $$");
  const std::string wrong_password = mod_ + (mod_.find('?') == std::string::npos ? "?" : "&") +
                                     "user=zerbal_pw&password=wrong";
  const struct {
    const char* name;
    std::string uri;
    int32_t number;
  } rows[] = {
      {"no server at that socket", "postgresql:///x?host=" + dir_.path().string(), errc::kCannotOpen},
      {"no such database", empty, errc::kDatabaseNotFound},
      {"a database without the tables", bare.Uri(), errc::kUnrecognizedFormat},
      {"wrong password", wrong_password, errc::kCannotOpen},
      {"not a URI", "postgresql://[", errc::kInvalidPath},
  };
  for (const auto& row : rows) {
    cDeclarante declarante;
    declarante.mdbmod(row.uri);
    const std::optional<Error> error = test::ErrorOf([&] { declarante.ObtenerDeclarantes(); });
    if (row.uri == wrong_password && !error) continue;  // a server that trusts every local user
    ASSERT_TRUE(error) << row.name;
    EXPECT_EQ(error->Number(), row.number) << row.name << ": " << error->Description();
  }
  EXPECT_EQ(test::Rows(server, "SELECT count(*) FROM pg_database WHERE datname = 'zerbal_test_none'"),
            (Rows{{0}}));
  EXPECT_EQ(test::Rows(bare.Uri(), "SELECT count(*) FROM pg_tables WHERE schemaname = 'public'"),
            (Rows{{0}}));
  EXPECT_RAISES(CreateDataDatabase(mod_), errc::kFileAlreadyExists) << "init twice";
  EXPECT_RAISES(CreateDataDatabase(empty), errc::kDatabaseNotFound) << "init makes no database";
}

TEST_F(ServerTest, AnEarlierDatabaseIsUpgradedAfterTheServersDumpOfIt) {
  CreateDataDatabase(mod_, true, 2007);
  test::Exec(mod_, "INSERT INTO tOperadores (coddeclar, paiso, nifo, importe) VALUES (1, 0, 'A20111111', 5)");
  test::Exec(mod_, "INSERT INTO tArrendamientos (coddeclar, prova, paiso, nifa, importe) "
                   "VALUES (1, 99, 0, 'A20222222', 6)");
  EXPECT_FALSE(upgrade::ColumnasQueFaltan(mod_).empty());
  const std::string dump = (dir_ / "copia").string();
  EXPECT_EQ(upgrade::CopiaSeguridad(mod_, dump), 1);
  EXPECT_EQ(test::Slurp(dump).substr(0, 5), "PGDMP") << "the server's own dump";

  cTraspaso traspaso;
  traspaso.mdbmod(mod_);
  traspaso.mdbPath((dir_.path() / "").string());
  traspaso.Traspaso();
  EXPECT_EQ(upgrade::ColumnasQueFaltan(mod_), std::vector<std::string>{});
  EXPECT_EQ(test::Rows(mod_, "SELECT nifo, importe, impmet FROM tOperadores"), (Rows{{"A20111111", 5.0, 0.0}}));
  EXPECT_EQ(test::Rows(mod_, "SELECT nifa, provi, prova FROM tArrendamientos"), (Rows{{"A20222222", 20, 0}}));
  EXPECT_FALSE(std::filesystem::exists(dir_ / std::string(upgrade::kCopiaSeguridad)))
      << "the copy goes when the upgrade ends";
  // Column by column, in order, with types, defaults and checks, as a new one.
  const std::string columns =
      "SELECT c.relname, a.attname, format_type(a.atttypid, a.atttypmod), a.attnotnull, "
      "coalesce(pg_get_expr(d.adbin, d.adrelid), ''), a.attidentity FROM pg_attribute a "
      "JOIN pg_class c ON c.oid = a.attrelid JOIN pg_namespace n ON n.oid = c.relnamespace "
      "LEFT JOIN pg_attrdef d ON d.adrelid = a.attrelid AND d.adnum = a.attnum "
      "WHERE n.nspname = 'public' AND c.relkind = 'r' AND a.attnum > 0 AND NOT a.attisdropped "
      "ORDER BY c.relname, a.attnum";
  const std::string checks =
      "SELECT c.relname, o.conname, pg_get_constraintdef(o.oid) FROM pg_constraint o "
      "JOIN pg_class c ON c.oid = o.conrelid JOIN pg_namespace n ON n.oid = c.relnamespace "
      "WHERE n.nspname = 'public' ORDER BY 1, 2";
  test::ServerDatabase fresh;
  CreateDataDatabase(fresh.Uri());
  EXPECT_EQ(test::Rows(mod_, columns), test::Rows(fresh.Uri(), columns));
  EXPECT_EQ(test::Rows(mod_, checks), test::Rows(fresh.Uri(), checks));
}

TEST_F(ServerTest, ALookupDatabaseOnTheServerAnswersAsTheFile) {
  test::ServerDatabase lookup;
  CreateLookupDatabase(lookup.Uri());
  cDatosGenerales on_file, on_server;
  on_file.mdblec(lec_);
  on_server.mdblec(lookup.Uri());
  for (cDatosGenerales* d : {&on_file, &on_server}) d->mdbmod(mod_);
  for (int32_t idioma : {0, 1}) {
    EXPECT_EQ(on_server.ObtenerDescriVia("cl", idioma), on_file.ObtenerDescriVia("cl", idioma));
    EXPECT_EQ(on_server.ObtenerNombreProvincia("20", idioma), on_file.ObtenerNombreProvincia("20", idioma));
    EXPECT_EQ(on_server.ObtenerDesPais(108, idioma), on_file.ObtenerDesPais(108, idioma));
    EXPECT_EQ(on_server.ObtenerNombrePaisIntra("fr", idioma), on_file.ObtenerNombrePaisIntra("fr", idioma));
    EXPECT_EQ(on_server.ObtenerDescripciones(idioma), on_file.ObtenerDescripciones(idioma));
  }
  EXPECT_EQ(on_server.ObtenerURLAct(), on_file.ObtenerURLAct());
  EXPECT_FALSE(on_server.ObtenerNombreProvincia("20", 0).empty());
}

TEST_F(ServerTest, AWriterKeptWaitingPastTheTimeoutGets3260) {
  const data::PgHandle other = data::PgConnect(mod_);
  data::PgExecScript(other.get(), "BEGIN; LOCK TABLE TDeclarante IN EXCLUSIVE MODE");
  const auto saved = data::BusyTimeout();
  data::SetBusyTimeout(std::chrono::milliseconds(100));
  cDeclarante declarante;
  declarante.mdbmod(mod_);
  EXPECT_TRUE(declarante.ObtenerDeclarantes().IsNull()) << "reading goes on";
  EXPECT_RAISES(declarante.GuardarDeclarante(test::PersonBuffer(0, "12345678Z", "Otro")), errc::kLocked);
  data::SetBusyTimeout(saved);
  data::PgExecScript(other.get(), "ROLLBACK");
  EXPECT_EQ(declarante.GuardarDeclarante(test::PersonBuffer(0, "12345678Z", "Otro")), 1)
      << "and works once the lock is gone";
}

TEST_F(ServerTest, AConnectionTheServerDroppedIsOpenedAgain) {
  cDeclarante declarante;
  declarante.mdbmod(mod_);
  EXPECT_EQ(declarante.GuardarDeclarante(test::PersonBuffer(0, "12345678Z", "Uno")), 1);
  // What a restart of the server does to the connection kept between calls.
  test::Exec(mod_, "SELECT pg_terminate_backend(pid) FROM pg_stat_activity "
                   "WHERE datname = current_database() AND pid <> pg_backend_pid()");
  EXPECT_EQ(declarante.GuardarDeclarante(test::PersonBuffer(0, "87654321X", "Dos")), 2);
  EXPECT_EQ(test::Rows(mod_, "SELECT count(*) FROM TDeclarante"), (Rows{{2}}));
}

// The children of the tests above, run as processes of their own.
TEST(ServerChild, Imports) {
  if (Env("ZERBAL_CHILD_FILE").empty()) GTEST_SKIP() << "a child of ServerTest";
  cli::ImportOptions options;
  options.data = Env("ZERBAL_CHILD_DATA");
  options.lookup = Env("ZERBAL_CHILD_LOOKUP");
  options.file = Env("ZERBAL_CHILD_FILE");
  options.year_max = 2014;
  const cli::ImportSummary summary = cli::ImportFile(options);
  EXPECT_EQ(summary.refused, 0);
  EXPECT_EQ(summary.lines, kDeclarants * (kOperations + 1));
}

TEST(ServerChild, SavesOperations) {
  if (Env("ZERBAL_CHILD_NAME").empty()) GTEST_SKIP() << "a child of ServerTest";
  const std::string data = Env("ZERBAL_CHILD_DATA");
  cDeclarado declarado;
  declarado.mdbmod(data);
  int wrong = 0;
  for (int k = 0; k < kSaves; ++k) {
    const std::string name = Env("ZERBAL_CHILD_NAME") + std::to_string(k);
    const int32_t key = declarado.GuardarDeclarado(test::Buffer(
        {0, 1, 20, "FR", Dni(20000000 + k), name, "A", 100.0, 0.0, 0.0, "", "", "", 25.0, 25.0,
         25.0, 25.0, 0.0, 0.0, 0.0, 0.0, 0, "", "", "", "", "", 0.0}));
    const Rows stored = test::Rows(data, "SELECT razon FROM tOperadores WHERE codope = " + std::to_string(key));
    if (stored != Rows{{name}}) ++wrong;
  }
  EXPECT_EQ(wrong, 0);
}

}  // namespace
}  // namespace zerbal
