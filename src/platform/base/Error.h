#pragma once
// The one failure type of the program, and the numbers that rules test by value.

#include <cstdint>
#include <exception>
#include <string>

namespace fenvale {

/// A failure: a number that a failure exit can recognise, and one sentence for the person in front of the screen.
/// It is the only exception type that the program throws, but for ProgramEnded.
struct Error final : std::exception {
  Error(std::int32_t failureNumber, std::string failureDescription)
      : number(failureNumber), description(std::move(failureDescription)) {}
  const char* what() const noexcept override { return description.c_str(); }

  std::int32_t number;
  std::string description;
};

/// The numbers of failures. Those of the store are the provider's signed 32-bit codes.
namespace errors {
inline constexpr std::int32_t invalidCall = 5;
inline constexpr std::int32_t overflow = 6;
inline constexpr std::int32_t indexOutOfRange = 9;
inline constexpr std::int32_t divisionByZero = 11;
inline constexpr std::int32_t typeMismatch = 13;
inline constexpr std::int32_t fileNotFound = 53;
inline constexpr std::int32_t fileExists = 58;
inline constexpr std::int32_t fileDiskFull = 61;
inline constexpr std::int32_t fileAccess = 75;
inline constexpr std::int32_t objectNotSet = 91;
inline constexpr std::int32_t invalidUseOfNull = 94;
inline constexpr std::int32_t invalidPropertyValue = 380;
inline constexpr std::int32_t listIndexOutOfBounds = 35600;

inline constexpr std::int32_t refused = -2147467259;          ///< 0x80004005 duplicate, row in use, missing reference
inline constexpr std::int32_t valueMismatch = -2147217913;    ///< 0x80040E07 value cannot be converted
inline constexpr std::int32_t unknownColumn = -2147217904;    ///< 0x80040E10
inline constexpr std::int32_t syntax = -2147217900;           ///< 0x80040E14 syntax, object exists, unknown function
inline constexpr std::int32_t storeExists = -2147217897;      ///< 0x80040E17
inline constexpr std::int32_t columnExists = -2147217887;     ///< 0x80040E21
inline constexpr std::int32_t unknownTable = -2147217865;     ///< 0x80040E37
inline constexpr std::int32_t valueOutOfRange = -2147217833;  ///< 0x80040E57 number out of range, text too long
inline constexpr std::int32_t noTransaction = -2147168242;    ///< 0x8004D00E
inline constexpr std::int32_t tooManyTransactions = -2147168237;  ///< 0x8004D013

inline constexpr std::int32_t objectClosed = 3704;
inline constexpr std::int32_t objectOpen = 3705;
inline constexpr std::int32_t connectionClosed = 3709;
inline constexpr std::int32_t noCurrentRecord = 3021;
inline constexpr std::int32_t noSuchField = 3265;
inline constexpr std::int32_t badArgument = 3001;
inline constexpr std::int32_t notAllowedHere = 3219;
inline constexpr std::int32_t inTransaction = 3246;
inline constexpr std::int32_t notSupported = 3251;
inline constexpr std::int32_t fileNotStore = 3343;
inline constexpr std::int32_t storeDamaged = 3049;
inline constexpr std::int32_t storeNotFound = 3024;
inline constexpr std::int32_t storeNotOpened = 3051;
inline constexpr std::int32_t storeReadOnly = 3027;
inline constexpr std::int32_t storeLocked = 3218;
inline constexpr std::int32_t diskFull = 3183;
}  // namespace errors

/// Thrown by ending the program where the process must live on (in tests). Nothing but a test catches it.
struct ProgramEnded final {
  int exitCode = 0;
};

}  // namespace fenvale
