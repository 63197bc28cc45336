#pragma once

#include <stdexcept>
#include <string>

namespace vantore {

/// The numbers under which the suite reports what can go wrong while it runs.
enum class ErrorNumber {
    InvalidProcedureCall = 5,
    Overflow = 6,
    SubscriptOutOfRange = 9,
    DivisionByZero = 11,
    TypeMismatch = 13,
    BadFileName = 52,
    FileNotFound = 53,
    DiskFull = 61,
    InputPastEnd = 62,
    DeviceUnavailable = 68,
    PermissionDenied = 70,
    DiskNotReady = 71,
    PathFileAccess = 75,
    PathNotFound = 76,
    InvalidUseOfNull = 94,
    InvalidPropertyValue = 380,
    CancelSelected = 32755,
};

/// The text that belongs to a number, such as "Division by zero".
std::string errorText(ErrorNumber number);

/// A failure while the suite runs: its number, with `what()` the number's text.
class RuntimeError : public std::runtime_error {
  public:
    explicit RuntimeError(ErrorNumber number);

    ErrorNumber number() const { return number_; }

  private:
    ErrorNumber number_;
};

} // namespace vantore
