#include "shell/base/runtime_error.h"

namespace vantore {

std::string errorText(ErrorNumber number) {
    switch (number) {
    case ErrorNumber::InvalidProcedureCall: return "Invalid procedure call or argument";
    case ErrorNumber::Overflow: return "Overflow";
    case ErrorNumber::SubscriptOutOfRange: return "Subscript out of range";
    case ErrorNumber::DivisionByZero: return "Division by zero";
    case ErrorNumber::TypeMismatch: return "Type mismatch";
    case ErrorNumber::BadFileName: return "Bad file name or number";
    case ErrorNumber::FileNotFound: return "File not found";
    case ErrorNumber::DiskFull: return "Disk full";
    case ErrorNumber::InputPastEnd: return "Input past end of file";
    case ErrorNumber::DeviceUnavailable: return "Device unavailable";
    case ErrorNumber::PermissionDenied: return "Permission denied";
    case ErrorNumber::DiskNotReady: return "Disk not ready";
    case ErrorNumber::PathFileAccess: return "Path/File access error";
    case ErrorNumber::PathNotFound: return "Path not found";
    case ErrorNumber::InvalidUseOfNull: return "Invalid use of Null";
    case ErrorNumber::InvalidPropertyValue: return "Invalid property value";
    case ErrorNumber::CancelSelected: return "Cancel was selected.";
    }
    return "Unknown error";
}

RuntimeError::RuntimeError(ErrorNumber number) : std::runtime_error(errorText(number)), number_(number) {}

} // namespace vantore
