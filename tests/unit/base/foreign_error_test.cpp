#include "base/foreign_error.h"

#include <cerrno>
#include <doctest/doctest.h>
#include <filesystem>
#include <ios>
#include <memory>
#include <new>
#include <stdexcept>
#include <system_error>
#include <typeinfo>

namespace tessara::test {

TEST_CASE("an exception of the standard library has the number of the error that it comes to") {
  const auto ofSystem = [](int code) {
    return std::make_shared<std::system_error>(code, std::system_category());
  };
  struct Case {
    std::shared_ptr<std::exception> foreign;
    int number;
  };
  const Case cases[] = {
      {std::make_shared<std::bad_alloc>(), 7},
      {std::make_shared<std::bad_array_new_length>(), 7},
      {std::make_shared<std::length_error>("text"), 7},
      {ofSystem(ENOMEM), 7},
      {ofSystem(ENOENT), 53},
      {ofSystem(ENOSPC), 61},
      {ofSystem(EACCES), 70},
      {ofSystem(ELOOP), 75},
      {ofSystem(ENOTDIR), 76},
      {std::make_shared<std::filesystem::filesystem_error>(
           "status", "/decks", std::make_error_code(std::errc::not_a_directory)),
       76},
      {std::make_shared<std::ios_base::failure>("stream"), 57},
      {std::make_shared<std::out_of_range>("row"), 9},
      {std::make_shared<std::logic_error>("never"), 51},
      {std::make_shared<std::bad_cast>(), 51},
  };
  for (const Case& c : cases) {
    CAPTURE(c.foreign->what());
    CHECK(static_cast<int>(RunTimeErrorOf(*c.foreign).Number()) == c.number);
  }
}

}  // namespace tessara::test
