#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <csignal>
#include <doctest/doctest.h>
#include <sys/resource.h>

#include "adapters/qt/devices/lazy_print_surface.h"
#include "adapters/qt/text/qt_text.h"
#include "base/run_time_error.h"
#include "tests/support/contracts/print_surface_contract.h"

using namespace tessara;

namespace {

/// The real surface, writing into a PDF file.
struct PdfDesk {
  QTemporaryDir folder;
  QString file = folder.filePath("sheet.pdf");
  PrintModuleSource printing{FromQString(QStringLiteral(TESSARA_TEST_MODULES))};
  LazyPrintSurface printer{printing};
  PrintSurface& surface = printer.Surface();

  PdfDesk() {
    surface.SetDestination({u"", FromQString(file)});
    surface.SetCopies(1);
    surface.SetFontName(u"Arial");
    surface.SetFontSize(10);
  }

  [[nodiscard]] QByteArray Written() const {
    QFile pdf(file);
    return pdf.open(QIODevice::ReadOnly) ? pdf.readAll() : QByteArray();
  }
  [[nodiscard]] int Pages() const { return static_cast<int>(Written().count("/Type /Page\n")); }
};

/// For its life no file can grow beyond so many bytes, as on a disk that has no more room.
class FullDisk {
 public:
  explicit FullDisk(qsizetype bytes) {
    // Too long a file is then an error of the write alone.
    std::signal(SIGXFSZ, SIG_IGN);
    getrlimit(RLIMIT_FSIZE, &before_);
    const rlimit limit{static_cast<rlim_t>(bytes), before_.rlim_max};
    setrlimit(RLIMIT_FSIZE, &limit);
  }
  FullDisk(const FullDisk&) = delete;
  FullDisk& operator=(const FullDisk&) = delete;
  ~FullDisk() {
    setrlimit(RLIMIT_FSIZE, &before_);
    std::signal(SIGXFSZ, SIG_DFL);
  }

 private:
  rlimit before_{};
};

}  // namespace

TEST_CASE("The surface keeps to what the print jobs count on") {
  PdfDesk desk;
  test::CheckPrintSurfaceContract(desk.surface);
}

TEST_CASE("What comes from a colour font is drawn as a picture, and nothing else is") {
  PdfDesk desk;
  const auto pictures = [&desk](const Text& text) {
    desk.surface.PrintLine(text);
    desk.surface.EndDocument();
    return desk.Written().count("/Subtype /Image");
  };
  CHECK(pictures(u"smile \u0416") == 0);
  desk.surface.SetFontName(u"Noto Color Emoji");
  CHECK(pictures(u"\xD83D\xDE00") > 0);
}

TEST_CASE("Lengths are twips and agree with each other") {
  PdfDesk desk;
  CHECK(desk.surface.PageWidth() > 9000);
  CHECK(desk.surface.PageHeight() > desk.surface.PageWidth());
  const double line = desk.surface.TextHeight(u"x");
  CHECK(line > 200);
  CHECK(line < 300);
  CHECK(desk.surface.TextHeight(u"a\r\nb\r\nc") == doctest::Approx(3 * line));
  CHECK(desk.surface.TextWidth(u"wide\r\nwider one") ==
        doctest::Approx(desk.surface.TextWidth(u"wider one")));
  CHECK(desk.surface.CurrentY() == 0);
  desk.surface.PrintLine(u"a\r\nb");
  CHECK(desk.surface.CurrentY() == doctest::Approx(2 * line));
}

TEST_CASE("A tab is four blanks on paper") {
  PdfDesk desk;
  CHECK(desk.surface.TextWidth(u"a\tb") == doctest::Approx(desk.surface.TextWidth(u"a    b")));
}

TEST_CASE("Bold and size change the measures") {
  PdfDesk desk;
  const double plain = desk.surface.TextWidth(u"Tessara");
  desk.surface.SetBold(true);
  CHECK(desk.surface.TextWidth(u"Tessara") > plain);
  desk.surface.SetBold(false);
  desk.surface.SetFontSize(20);
  CHECK(desk.surface.TextWidth(u"Tessara") == doctest::Approx(2 * plain).epsilon(0.02));
}

TEST_CASE("Past the bottom a new page begins by itself, and a document is one file") {
  PdfDesk desk;
  const double line = desk.surface.TextHeight(u"x");
  const int lines = static_cast<int>(desk.surface.PageHeight() / line);
  for (int i = 0; i < lines; ++i) desk.surface.PrintLine(u"line");
  CHECK(desk.surface.CurrentY() > desk.surface.PageHeight() - line);
  desk.surface.PrintLine(u"one more");
  CHECK(desk.surface.CurrentY() == doctest::Approx(line));
  desk.surface.NewPage();
  CHECK(desk.surface.CurrentY() == 0);
  CHECK(desk.Written().isEmpty());
  desk.surface.DrawLine(0, 0, desk.surface.PageWidth(), 0);
  desk.surface.EndDocument();
  CHECK(desk.Written().startsWith("%PDF"));
  CHECK(desk.Pages() == 3);
  CHECK(desk.surface.CurrentY() == 0);
}

TEST_CASE("Nothing of a dropped document is printed, then or later") {
  PdfDesk desk;
  desk.surface.PrintLine(u"dropped");
  desk.surface.NewPage();
  desk.surface.DropDocument();
  CHECK_FALSE(QFile::exists(desk.file));
  desk.surface.PrintLine(u"kept");
  desk.surface.EndDocument();
  CHECK(desk.Pages() == 1);
}

TEST_CASE("A document that was broken off leaves the next one neither bold nor italic") {
  PdfDesk desk;
  const double plain = desk.surface.TextWidth(u"Tessara");
  desk.surface.SetBold(true);
  desk.surface.SetItalic(true);
  desk.surface.DropDocument();
  CHECK(desk.surface.TextWidth(u"Tessara") == plain);
}

TEST_CASE("The documents of one job follow each other in its file, and the next job's is new") {
  PdfDesk desk;
  for (const int pages : {1, 2}) {
    desk.surface.PrintLine(u"copy");
    desk.surface.EndDocument();
    CHECK(desk.Pages() == pages);
  }
  desk.surface.PrintLine(u"broken off");
  desk.surface.NewPage();
  desk.surface.DropDocument();
  desk.surface.PrintLine(u"third copy");
  desk.surface.EndDocument();
  CHECK(desk.Pages() == 3);
  desk.surface.SetDestination({u"", FromQString(desk.file)});
  desk.surface.PrintLine(u"another job");
  desk.surface.EndDocument();
  CHECK(desk.Pages() == 1);
}

TEST_CASE("A document that finds no room leaves those before it in the file") {
  PdfDesk desk;
  desk.surface.PrintLine(u"first copy");
  desk.surface.EndDocument();
  {
    const FullDisk disk(desk.Written().size());
    desk.surface.PrintLine(u"second copy");
    CHECK_THROWS_AS(desk.surface.EndDocument(), RunTimeError);
  }
  CHECK(desk.Pages() == 1);
  desk.surface.PrintLine(u"second copy, with room for it");
  desk.surface.EndDocument();
  CHECK(desk.Pages() == 2);
}

TEST_CASE("Without the print module there is nothing to print on") {
  PrintModuleSource printing{u"/nowhere"};
  LazyPrintSurface printer{printing};
  CHECK_THROWS_AS((void)printer.Surface(), RunTimeError);
}

TEST_CASE("A printer or a file that can't be written to is an error") {
  PdfDesk desk;
  SUBCASE("no such printer") {
    desk.surface.SetDestination({u"no such printer", u""});
    CHECK_THROWS_AS(desk.surface.PrintLine(u"x"), RunTimeError);
  }
  SUBCASE("no such folder") {
    desk.surface.SetDestination({u"", u"/no such folder/x.pdf"});
    desk.surface.PrintLine(u"x");
    CHECK_THROWS_AS(desk.surface.EndDocument(), RunTimeError);
  }
}
