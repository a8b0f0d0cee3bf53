#include "adapters/freedesktop/document_registry.h"

#include <doctest/doctest.h>
#include <filesystem>

#include "adapters/freedesktop/document_files.h"
#include "tests/support/scratch_folder.h"

namespace tessara::test {

namespace {

const DocumentRegistry::Tools kNoTools = [](const std::filesystem::path&) {};

}  // namespace

TEST_CASE("a path in a desktop entry is quoted by its rules") {
  struct Case {
    const char* path;
    const char* quoted;
  };
  for (const Case& c : {Case{"/opt/tessara/tessara", "/opt/tessara/tessara"},
                        {"/my decks/t", R"("/my decks/t")"},
                        {"/100%/t", "/100%%/t"},
                        {"/a$b/t", R"("/a\\$b/t")"},
                        {"/a\"b`c/t", R"("/a\\"b\\`c/t")"},
                        {"/a\\b/t", R"("/a\\\\b/t")"},
                        {"/a\nTerminal=true\rb/t", R"("/a\nTerminal=true\rb/t")"}}) {
    CHECK(QuotedForExec(c.path) == c.quoted);
  }
}

TEST_CASE("the desktop entry opens one file and names the deck type") {
  const std::string entry = DesktopEntry({"*.tsr", "Tessara File", "/opt/tessara/tessara"});
  CHECK(entry.find("Exec=/opt/tessara/tessara %f\n") != std::string::npos);
  CHECK(entry.find("MimeType=application/x-tessara-deck;\n") != std::string::npos);
  CHECK(entry.find("Icon=tessara\n") != std::string::npos);
}

TEST_CASE("the desktop entry vanishes with its program, whatever the path of that") {
  for (const auto& [path, value] :
       {std::pair{"/opt/tessara/tessara", "/opt/tessara/tessara"},
        std::pair{"/my decks/t", "/my decks/t"}, std::pair{"/a\\b/t", R"(/a\\b/t)"},
        std::pair{"/a\nTerminal=true\r\t/t", R"(/a\nTerminal=true\r\t/t)"}}) {
    const std::string entry = DesktopEntry({"*.tsr", "Tessara File", path});
    CHECK(entry.find(std::string("\nTryExec=") + value + "\n") != std::string::npos);
  }
}

TEST_CASE("the MIME package escapes what it is told") {
  const std::string package = MimePackage({"*.t&r", "A <b> \"deck\"", "/t"});
  CHECK(package.find("<comment>A &lt;b> &quot;deck&quot;</comment>") != std::string::npos);
  CHECK(package.find("pattern=\"*.t&amp;r\"") != std::string::npos);
}

TEST_CASE("a value of a key that was not made is refused") {
  DocumentRegistry registry({"", "/opt/tessara", "tessara"}, kNoTools);
  CHECK(registry.SetClassValue(u".tsr", u"", u"x") != 0);
  CHECK(registry.CreateClassKey(u"Tessara.Document\\DefaultIcon") == 0);
  CHECK(registry.SetClassValue(u"Tessara.Document", u"", u"Tessara File") == 0);
}

TEST_CASE("publishing writes package, entry and icons below the user's data folder") {
  const ScratchFolder scratch;
  std::filesystem::create_directories(scratch / "program/icons/hicolor/16x16/apps");
  scratch.Write("program/icons/hicolor/16x16/apps/tessara.png", "icon");
  std::filesystem::path told;
  DocumentRegistry registry({scratch / "data", scratch / "program", "tessara"},
                            [&](const std::filesystem::path& folder) { told = folder; });
  registry.CreateClassKey(u"Tessara.Document");
  registry.SetClassValue(u"Tessara.Document", u"", u"Tessara File");
  registry.Publish();
  CHECK(scratch.Read("data/mime/packages/tessara.xml").find("Tessara File") != std::string::npos);
  CHECK(scratch.Read("data/applications/tessara.desktop")
            .find((scratch / "program/tessara").string()) != std::string::npos);
  CHECK(scratch.Read("data/icons/hicolor/16x16/apps/tessara.png") == "icon");
  CHECK(told == scratch / "data");
}

TEST_CASE("publishing where nothing can be written is silent") {
  DocumentRegistry nowhere({"/proc/nowhere", "/nowhere", "tessara"}, kNoTools);
  CHECK_NOTHROW(nowhere.Publish());
  DocumentRegistry homeless({"", "/nowhere", "tessara"}, kNoTools);
  CHECK_NOTHROW(homeless.Publish());
}

}  // namespace tessara::test
