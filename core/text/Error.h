#pragma once

#include <cstdint>
#include <exception>
#include <stdexcept>
#include <string>
#include <utility>
#include <variant>

namespace quillseal {

/// A failure that a user can be told: `what()` is a sentence in UTF-8, shown as it stands. It may
/// be empty when the platform gave no words; the caller then supplies some.
class Error : public std::runtime_error {
 public:
  struct Fields {
    std::string domain;     ///< whose numbering `code` belongs to, for example "Quillseal"
    std::int64_t code = 0;  ///< the platform's or the server's number
    std::string description;
  };

  explicit Error(const Fields& fields)
      : std::runtime_error(fields.description), domain_(fields.domain), code_(fields.code) {}

  [[nodiscard]] const std::string& domain() const noexcept { return domain_; }
  [[nodiscard]] std::int64_t code() const noexcept { return code_; }

 private:
  std::string domain_;
  std::int64_t code_;
};

/// The person called off what they were asked to agree to. Not a failure: nothing has changed, and
/// there is nothing to tell them.
class Cancelled : public std::exception {
 public:
  [[nodiscard]] const char* what() const noexcept override { return "cancelled"; }
};

/// How an asynchronous request ended.
template <typename T>
using Outcome = std::variant<T, Error>;

}  // namespace quillseal
