#pragma once
// Other programs on a store, in processes of their own.

#include <gtest/gtest.h>
#include <signal.h>
#include <sys/wait.h>
#include <unistd.h>

#include <chrono>
#include <functional>
#include <string>
#include <vector>

#include "platform/base/Error.h"
#include "platform/sql/StoreFixture.h"

namespace fenvale::test {

/// The status of a child process that does this and nothing else.
inline int inChild(const std::function<void()>& action) {
  const pid_t child = ::fork();
  if (child == 0) {
    int code = 0;
    try {
      action();
    } catch (const Error&) {
      code = 1;
    }
    ::_exit(code);
  }
  int status = 0;
  ::waitpid(child, &status, 0);
  return status;
}

/// A second program on the store, which acts on a word and answers when it is done.
class OtherProgram {
 public:
  OtherProgram(const std::string& path, std::vector<std::function<void(TestStore&)>> steps, LockWait* wait = nullptr) {
    EXPECT_EQ(::pipe(orders_), 0);
    EXPECT_EQ(::pipe(answers_), 0);
    child_ = ::fork();
    if (child_ != 0) return;
    int code = 0;
    try {
      TestStore store(path, wait);
      char word = 0;
      for (const auto& step : steps) {
        if (::read(orders_[0], &word, 1) != 1) break;
        step(store);
        if (::write(answers_[1], "!", 1) != 1) break;
      }
      while (::read(orders_[0], &word, 1) == 1) {  // stays as it is until it is ended
      }
    } catch (const Error&) {
      code = 1;
    }
    ::_exit(code);
  }
  ~OtherProgram() {
    ::close(orders_[1]);
    ::kill(child_, SIGKILL);
    ::waitpid(child_, nullptr, 0);
    for (const int end : {orders_[0], answers_[0], answers_[1]}) ::close(end);
  }
  OtherProgram(const OtherProgram&) = delete;
  OtherProgram& operator=(const OtherProgram&) = delete;

  void order() { EXPECT_EQ(::write(orders_[1], "?", 1), 1); }
  void expectAnswer() {
    char word = 0;
    EXPECT_EQ(::read(answers_[0], &word, 1), 1);
  }
  void next() {
    order();
    expectAnswer();
  }

 private:
  int orders_[2] = {-1, -1};
  int answers_[2] = {-1, -1};
  pid_t child_ = -1;
};

class Waiting final : public LockWait {
 public:
  explicit Waiting(std::function<bool(int)> answer) : answer_(std::move(answer)) {}
  bool keepWaiting(std::chrono::milliseconds waited) override {
    EXPECT_GE(waited, last_ + std::chrono::milliseconds(90));
    last_ = waited;
    return answer_(++told);
  }
  int told = 0;

 private:
  std::function<bool(int)> answer_;
  std::chrono::milliseconds last_{0};
};

}  // namespace fenvale::test
