#include <doctest/doctest.h>
#include <filesystem>
#include <sys/mount.h>

#include "adapters/qt/devices/lazy_print_surface.h"
#include "base/utf8.h"
#include "tests/printing/office_fixture.h"

namespace tessara {
namespace {

using test::OfficeFixture;
using Mode = OfficeFixture::Mode;

/// A disk on which nothing finds room, where this system lets one be made.
class FullDisk {
 public:
  explicit FullDisk(const std::filesystem::path& folder) : folder_(folder) {
    std::filesystem::create_directory(folder_);
    made_ = mount("none", folder_.c_str(), "tmpfs", 0, "size=4096") == 0;
  }
  ~FullDisk() {
    if (made_) umount2(folder_.c_str(), MNT_DETACH);
  }
  FullDisk(const FullDisk&) = delete;
  FullDisk& operator=(const FullDisk&) = delete;

  [[nodiscard]] bool Made() const { return made_; }

 private:
  std::filesystem::path folder_;
  bool made_;
};

/// Cards and listings, each to the answered path.
struct PdfFixture {
  PrintModuleSource printing{FromUtf8(PROGRAM_FOLDER)};
  LazyPrintSurface printer{printing};
  OfficeFixture office{1, {nullptr, &printer}};

  void CheckCancelled(Mode mode, const std::string& path) {
    CAPTURE(path);
    CAPTURE(static_cast<int>(mode));
    office.fakes.dialogs.printers.emplace_back(PrinterChoice{{u"", FromUtf8(path)}, 1});
    office.fakes.messages.shown.clear();
    office.PressPrint(mode);
    int told = 0;
    for (const auto& box : office.fakes.messages.shown) {
      if (box.text == u"Printing was cancelled") ++told;
    }
    CHECK(told == 1);
    CHECK(office.fakes.messages.shown.back().title == u"Cancel Printing");
  }
};

TEST_CASE("a PDF file that can't be written cancels the job, told once, and the next one prints") {
  const test::ScratchFolder folder;
  const FullDisk disk(folder / "full");
  const std::string onFullDisk = folder / "full/cards.pdf";
  std::vector<std::string> paths{"/dev/full"};
  if (disk.Made()) paths.push_back(onFullDisk);
  PdfFixture fixture;
  for (const std::string& path : paths) {
    for (const Mode mode : {Mode::kCards, Mode::kFlat}) fixture.CheckCancelled(mode, path);
  }
  for (const std::string path : {folder.Path(), folder / "none/listing.pdf"}) {
    fixture.CheckCancelled(Mode::kFlat, path);
  }
  CHECK_FALSE(std::filesystem::exists(onFullDisk));
  CHECK(std::filesystem::is_character_file("/dev/full"));
  CHECK(fixture.office.Print() == "PRINT BACK");  // the flag of the cancelled listing is still set
  CHECK(fixture.office.Pages().size() == 2);
}

}  // namespace
}  // namespace tessara
