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
struct PdfFixture {
  QTemporaryDir folder;
  QString file = folder.filePath("sheet.pdf");
  PrintModuleSource printing{FromQString(QStringLiteral(TESSARA_TEST_MODULES))};
  LazyPrintSurface printer{printing};
  PrintSurface& surface = printer.Surface();

  PdfFixture() {
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
  PdfFixture fixture;
  test::CheckPrintSurfaceContract(fixture.surface);
}

TEST_CASE("What comes from a colour font is drawn as a picture, and nothing else is") {
  PdfFixture fixture;
  const auto pictures = [&fixture](const Text& text) {
    fixture.surface.PrintLine(text);
    fixture.surface.EndDocument();
    return fixture.Written().count("/Subtype /Image");
  };
  CHECK(pictures(u"smile \u0416") == 0);
  fixture.surface.SetFontName(u"Noto Color Emoji");
  CHECK(pictures(u"\xD83D\xDE00") > 0);
}

TEST_CASE("Lengths are twips and agree with each other") {
  PdfFixture fixture;
  CHECK(fixture.surface.PageWidth() > 9000);
  CHECK(fixture.surface.PageHeight() > fixture.surface.PageWidth());
  const double line = fixture.surface.TextHeight(u"x");
  CHECK(line > 200);
  CHECK(line < 300);
  CHECK(fixture.surface.TextHeight(u"a\r\nb\r\nc") == doctest::Approx(3 * line));
  CHECK(fixture.surface.TextWidth(u"wide\r\nwider one") ==
        doctest::Approx(fixture.surface.TextWidth(u"wider one")));
  CHECK(fixture.surface.CurrentY() == 0);
  fixture.surface.PrintLine(u"a\r\nb");
  CHECK(fixture.surface.CurrentY() == doctest::Approx(2 * line));
}

TEST_CASE("A tab is four blanks on paper") {
  PdfFixture fixture;
  CHECK(fixture.surface.TextWidth(u"a\tb") ==
        doctest::Approx(fixture.surface.TextWidth(u"a    b")));
}

TEST_CASE("Bold and size change the measures") {
  PdfFixture fixture;
  const double plain = fixture.surface.TextWidth(u"Tessara");
  fixture.surface.SetBold(true);
  CHECK(fixture.surface.TextWidth(u"Tessara") > plain);
  fixture.surface.SetBold(false);
  fixture.surface.SetFontSize(20);
  CHECK(fixture.surface.TextWidth(u"Tessara") == doctest::Approx(2 * plain).epsilon(0.02));
}

TEST_CASE("Past the bottom a new page begins by itself, and a document is one file") {
  PdfFixture fixture;
  const double line = fixture.surface.TextHeight(u"x");
  const int lines = static_cast<int>(fixture.surface.PageHeight() / line);
  for (int i = 0; i < lines; ++i) fixture.surface.PrintLine(u"line");
  CHECK(fixture.surface.CurrentY() > fixture.surface.PageHeight() - line);
  fixture.surface.PrintLine(u"one more");
  CHECK(fixture.surface.CurrentY() == doctest::Approx(line));
  fixture.surface.NewPage();
  CHECK(fixture.surface.CurrentY() == 0);
  CHECK(fixture.Written().isEmpty());
  fixture.surface.DrawLine(0, 0, fixture.surface.PageWidth(), 0);
  fixture.surface.EndDocument();
  CHECK(fixture.Written().startsWith("%PDF"));
  CHECK(fixture.Pages() == 3);
  CHECK(fixture.surface.CurrentY() == 0);
}

TEST_CASE("Nothing of a dropped document is printed, then or later") {
  PdfFixture fixture;
  fixture.surface.PrintLine(u"dropped");
  fixture.surface.NewPage();
  fixture.surface.DropDocument();
  CHECK_FALSE(QFile::exists(fixture.file));
  fixture.surface.PrintLine(u"kept");
  fixture.surface.EndDocument();
  CHECK(fixture.Pages() == 1);
}

TEST_CASE("A document that was broken off leaves the next one neither bold nor italic") {
  PdfFixture fixture;
  const double plain = fixture.surface.TextWidth(u"Tessara");
  fixture.surface.SetBold(true);
  fixture.surface.SetItalic(true);
  fixture.surface.DropDocument();
  CHECK(fixture.surface.TextWidth(u"Tessara") == plain);
}

TEST_CASE("The documents of one job follow each other in its file, and the next job's is new") {
  PdfFixture fixture;
  for (const int pages : {1, 2}) {
    fixture.surface.PrintLine(u"copy");
    fixture.surface.EndDocument();
    CHECK(fixture.Pages() == pages);
  }
  fixture.surface.PrintLine(u"broken off");
  fixture.surface.NewPage();
  fixture.surface.DropDocument();
  fixture.surface.PrintLine(u"third copy");
  fixture.surface.EndDocument();
  CHECK(fixture.Pages() == 3);
  fixture.surface.SetDestination({u"", FromQString(fixture.file)});
  fixture.surface.PrintLine(u"another job");
  fixture.surface.EndDocument();
  CHECK(fixture.Pages() == 1);
}

TEST_CASE("A document that finds no room leaves those before it in the file") {
  PdfFixture fixture;
  fixture.surface.PrintLine(u"first copy");
  fixture.surface.EndDocument();
  {
    const FullDisk disk(fixture.Written().size());
    fixture.surface.PrintLine(u"second copy");
    CHECK_THROWS_AS(fixture.surface.EndDocument(), RunTimeError);
  }
  CHECK(fixture.Pages() == 1);
  fixture.surface.PrintLine(u"second copy, with room for it");
  fixture.surface.EndDocument();
  CHECK(fixture.Pages() == 2);
}

TEST_CASE("Without the print module there is nothing to print on") {
  PrintModuleSource printing{u"/nowhere"};
  LazyPrintSurface printer{printing};
  CHECK_THROWS_AS((void)printer.Surface(), RunTimeError);
}

TEST_CASE("A printer or a file that can't be written to is an error") {
  PdfFixture fixture;
  SUBCASE("no such printer") {
    fixture.surface.SetDestination({u"no such printer", u""});
    CHECK_THROWS_AS(fixture.surface.PrintLine(u"x"), RunTimeError);
  }
  SUBCASE("no such folder") {
    fixture.surface.SetDestination({u"", u"/no such folder/x.pdf"});
    fixture.surface.PrintLine(u"x");
    CHECK_THROWS_AS(fixture.surface.EndDocument(), RunTimeError);
  }
}
