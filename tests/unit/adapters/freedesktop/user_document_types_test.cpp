#include "adapters/freedesktop/user_document_types.h"

#include <doctest/doctest.h>
#include <filesystem>

#include "tests/support/limited_process.h"
#include "tests/support/packaged_type.h"
#include "tests/support/scratch_folder.h"

namespace tessara::test {

namespace {

const UserDocumentTypes::Tools kNoTools = [](const UserDocumentTypes::Declared&) {};

}  // namespace

TEST_CASE("what is declared below the user's data folder is what the package describes") {
  const ScratchFolder scratch;
  std::filesystem::create_directories(scratch / "program/icons/hicolor/16x16/apps");
  scratch.Write("program/icons/hicolor/16x16/apps/tessara.png", "icon");
  UserDocumentTypes::Declared told;
  UserDocumentTypes types(scratch / "data", [&](const auto& declared) { told = declared; });
  types.Declare(PackagedType(scratch / "program"));
  CHECK(scratch.Read("data/mime/packages/tessara.xml") == PackagedFile("tessara.xml"));
  CHECK(scratch.Read("data/icons/hicolor/16x16/apps/tessara.png") == "icon");
  const std::string entry = scratch.Read("data/applications/tessara.desktop");
  const std::string program = scratch / "program/tessara";
  CHECK(entry == WithLine(PackagedFile("tessara.desktop"), "Exec=" + program + " %f") +
                     "TryExec=" + program + "\n");
  CHECK(told.userData == scratch / "data");
  CHECK(told.entry == "tessara.desktop");
  CHECK(told.documentTypes == "application/x-tessara-deck;");
}

TEST_CASE("a file that is the packaged one itself stays") {
  const ScratchFolder scratch;
  std::filesystem::create_directories(scratch / "data/icons");
  scratch.Write("data/icons/tessara.png", "icon");
  UserDocumentTypes(scratch / "data", kNoTools).Declare(PackagedType(scratch / "data"));
  CHECK(scratch.Read("data/icons/tessara.png") == "icon");
}

TEST_CASE("a file of the user's that is not to be written stays, also behind a link") {
  namespace fs = std::filesystem;
  const ScratchFolder scratch;
  const fs::path packages = scratch / "data/mime/packages";
  fs::create_directories(packages);
  scratch.Write("store", "the user's");
  fs::permissions(scratch / "store", fs::perms(0444));
  fs::permissions(scratch.Path(), fs::perms::all);
  fs::permissions(packages, fs::perms::all);
  fs::create_symlink(scratch / "store", packages / "tessara.xml");
  CHECK(HoldsForAnyUser([&] {
    UserDocumentTypes(scratch / "data", kNoTools).Declare(PackagedType("/nowhere"));
    return fs::is_symlink(packages / "tessara.xml");
  }));
  CHECK(scratch.Read("store") == "the user's");
}

TEST_CASE("a deck is a Tessara File by its ending, and its program takes one") {
  const std::string description = PackagedFile("tessara.xml");
  CHECK(description.find("<mime-type type=\"application/x-tessara-deck\">") != std::string::npos);
  CHECK(description.find("<comment>Tessara File</comment>") != std::string::npos);
  CHECK(description.find("<glob pattern=\"*.tsr\"/>") != std::string::npos);
  const std::string entry = PackagedFile("tessara.desktop");
  CHECK(entry.find("\nExec=tessara %f\n") != std::string::npos);
  CHECK(entry.find("\nMimeType=application/x-tessara-deck;\n") != std::string::npos);
}

TEST_CASE("declaring where nothing can be written, or from no package, is silent") {
  UserDocumentTypes nowhere("/proc/nowhere", kNoTools);
  CHECK_NOTHROW(nowhere.Declare(PackagedType("/nowhere")));
  UserDocumentTypes homeless("", kNoTools);
  CHECK_NOTHROW(homeless.Declare(PackagedType("/nowhere")));
  const ScratchFolder scratch;
  UserDocumentTypes withoutPackage(scratch / "data", kNoTools);
  withoutPackage.Declare({u"/nowhere/a.xml", u"/nowhere/a.desktop", u"/nowhere", u"/nowhere/a"});
  CHECK_FALSE(std::filesystem::exists(scratch / "data/applications/a.desktop"));
}

}  // namespace tessara::test
