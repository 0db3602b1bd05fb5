#pragma once
// Stores in a folder of their own, on a fixed day.

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <filesystem>
#include <functional>
#include <string>
#include <vector>

#include "platform/base/Error.h"
#include "platform/sql/Store.h"

namespace fenvale::test {

class FixedClock final : public Clock {
 public:
  explicit FixedClock(Date day) : day_(day) {}
  Date today() const override { return day_; }
  DateTime now() const override { return DateTime(day_); }

 private:
  Date day_;
};

class TemporaryFolder {
 public:
  TemporaryFolder();
  ~TemporaryFolder();
  TemporaryFolder(const TemporaryFolder&) = delete;
  TemporaryFolder& operator=(const TemporaryFolder&) = delete;
  std::string path(const std::string& name = "") const { return path_ + "/" + name; }

 private:
  std::string path_;
};

/// The SQL elements of a script of data/.
std::vector<std::string> scriptStatements(const std::string& name);

inline constexpr const char* programScript = "SQL.xmlSQL";
inline constexpr const char* companyScript = "SQLEmpresas.xmlSQL";

/// A connection to a store that may be new.
class TestStore {
 public:
  explicit TestStore(const std::string& path, LockWait* wait = nullptr);
  static void create(const std::string& path, const std::string& script);

  /// The statement's rows as texts, fields parted by "|".
  std::vector<std::string> rows(std::string_view statement);
  /// The first field of the first row.
  std::string value(std::string_view statement);
  std::int64_t run(std::string_view statement);

  Connection connection;

 private:
  static const FixedClock& clock();
};

/// The number of the Error that an action ends with, 0 without one.
std::int32_t numberOf(const std::function<void()>& action);
/// Its description, empty without one.
std::string descriptionOf(const std::function<void()>& action);

/// A company store with a few rows in each table.
class CompanyStore : public ::testing::Test {
 protected:
  CompanyStore();
  std::string path() const { return folder.path("loja.MDB"); }
  std::vector<std::string> rows(std::string_view statement) { return store->rows(statement); }
  std::string value(std::string_view statement) { return store->value(statement); }
  std::int64_t run(std::string_view statement) { return store->run(statement); }

  TemporaryFolder folder;
  std::unique_ptr<TestStore> store;
};

}  // namespace fenvale::test
