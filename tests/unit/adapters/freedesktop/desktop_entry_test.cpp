#include "adapters/freedesktop/desktop_entry.h"

#include <doctest/doctest.h>

#include "tests/support/scratch_folder.h"

namespace tessara::test {

namespace {

/// The lines that an entry has got for a program.
struct Lines {
  std::string path;
  std::string exec;
  std::string tryExec;
};

std::string SavedFor(const std::string& program) {
  const ScratchFolder folder;
  folder.Write("packaged", "[Desktop Entry]\nName=Tessara\nExec=tessara %f\nMimeType=a/b;\n");
  DesktopEntry entry(folder / "packaged");
  entry.SetProgram(program);
  REQUIRE(entry.Save(folder / "saved"));
  return folder.Read("saved");
}

}  // namespace

TEST_CASE("an entry starts its program with one file, and vanishes with it, whatever its path") {
  for (const Lines& c :
       {Lines{"/opt/t/t", "/opt/t/t", "/opt/t/t"},
        {"/my decks/t", R"("/my decks/t")", "/my decks/t"},
        {"/100%/t", "/100%%/t", "/100%/t"},
        {"/a$b/t", R"("/a\\$b/t")", "/a$b/t"},
        {"/a\"b`c/t", R"("/a\\"b\\`c/t")", "/a\"b`c/t"},
        {"/a\\b/t", R"("/a\\\\b/t")", R"(/a\\b/t)"},
        {"/a\nTerminal=true\rb/t", R"("/a\nTerminal=true\rb/t")", R"(/a\nTerminal=true\rb/t)"},
        {"/a\tb/t", "\"/a\tb/t\"", "/a\tb/t"}}) {
    CHECK(SavedFor(c.path) == "[Desktop Entry]\nName=Tessara\nExec=" + c.exec +
                                  " %f\nMimeType=a/b;\nTryExec=" + c.tryExec + "\n");
  }
}

TEST_CASE("an entry tells the types of its documents; a file that is none is empty") {
  const ScratchFolder folder;
  folder.Write("good", "[Desktop Entry]\nMimeType=a/b;c/d;\n");
  folder.Write("bad", "MimeType=a/b;\n");
  CHECK(DesktopEntry(folder / "good").DocumentTypes() == "a/b;c/d;");
  CHECK_FALSE(DesktopEntry(folder / "good").Empty());
  CHECK(DesktopEntry(folder / "bad").Empty());
  CHECK(DesktopEntry(folder / "none").Empty());
}

}  // namespace tessara::test
