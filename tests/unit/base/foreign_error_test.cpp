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

TEST_CASE("the system's error codes become run-time errors") {
  struct Case {
    int systemError;
    int onPath;
    int onTransfer;
  };
  const Case cases[] = {
      {ENOENT, 53, 57},    {ENOTDIR, 76, 57}, {EACCES, 70, 70},       {EPERM, 70, 70},
      {EROFS, 70, 70},     {ETXTBSY, 70, 70}, {EBUSY, 70, 70},        {EISDIR, 75, 57},
      {ELOOP, 75, 57},     {ENXIO, 75, 57},   {ENAMETOOLONG, 75, 57}, {EINVAL, 75, 57},
      {ENOSPC, 61, 61},    {EDQUOT, 61, 61},  {EFBIG, 61, 61},        {EIO, 57, 57},
      {ENOMEDIUM, 71, 71}, {ESTALE, 71, 71},  {ETIMEDOUT, 71, 71},    {EMFILE, 67, 67},
      {ENFILE, 67, 67},
  };
  for (const Case& c : cases) {
    CAPTURE(c.systemError);
    CHECK(static_cast<int>(PathError(c.systemError)) == c.onPath);
    CHECK(static_cast<int>(TransferError(c.systemError)) == c.onTransfer);
  }
}

}  // namespace tessara::test
