#pragma once
// Runtime errors as VB raises them: a number and a description. They travel up to the entry
// point; the shells turn them into the host's error reports and never let them cross further.
#include <exception>
#include <optional>
#include <string>

#include "vb/Variant.h"

namespace vb {

namespace err {
constexpr int kInvalidCall = 5;
constexpr int kOverflow = 6;
constexpr int kSubscriptOutOfRange = 9;
constexpr int kTypeMismatch = 13;
constexpr int kFileNotFound = 53;
constexpr int kInputPastEnd = 62;
constexpr int kPathFileAccess = 75;
constexpr int kPathNotFound = 76;
constexpr int kObjectNotSet = 91;
constexpr int kInvalidUseOfNull = 94;
constexpr int kCantCreateObject = 429;
constexpr int kNoSuchMember = 438;
constexpr int kAutomation = 440;
}  // namespace err

// The standard VB description of an error number ("Overflow", "Type mismatch", ...).
String standardDescription(int number);

class RuntimeError : public std::exception {
  public:
    explicit RuntimeError(int number);  // with the standard description
    RuntimeError(int number, String description);

    // A type mismatch raised by converting a text, carrying that text for the trace; the
    // number and description are the standard ones.
    static RuntimeError typeMismatch(String text);

    int number() const { return number_; }
    const String& description() const { return description_; }
    // The text a conversion could not read; nothing for any other error.
    const std::optional<String>& text() const { return text_; }
    const char* what() const noexcept override { return what_.c_str(); }

  private:
    int number_;
    String description_;
    std::string what_;
    std::optional<String> text_;
};

}  // namespace vb
