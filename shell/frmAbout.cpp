#include "shell/frmAbout.h"

#include "shell/documents.h"

namespace tessara {

namespace {

constexpr int kWidth = 5220;
constexpr int kHeight = 3690;
constexpr TextView kCredit = u"Flash cards by the Tessara developers";
constexpr Color kLinkBlue = FixedColor(0, 0, 238);

}  // namespace

frmAbout::frmAbout(AppContext& app)
    : Form(app.windows, "frmAbout", FormKind::kDialog, u"About"), app_(app) {
  SetWidth(kWidth);
  SetHeight(kHeight);
  Place({
      {&Line2[0], "Line2", 0, nullptr, u"", {120, 120, 4860, 15}, u""},
      {&Line2[1], "Line2", 1, nullptr, u"", {120, 3165, 4860, 15}, u""},
      {&Line2[2], "Line2", 2, nullptr, u"", {120, 120, 15, 3060}, u""},
      {&Line2[3], "Line2", 3, nullptr, u"", {4965, 120, 15, 3060}, u""},
      {&Line3[0], "Line3", 0, nullptr, u"", {180, 180, 4740, 15}, u""},
      {&Line3[1], "Line3", 1, nullptr, u"", {180, 3105, 4740, 15}, u""},
      {&Line3[2], "Line3", 2, nullptr, u"", {180, 180, 15, 2940}, u""},
      {&Line3[3], "Line3", 3, nullptr, u"", {4905, 180, 15, 2940}, u""},
      {&Label1[0], "Label1", 0, nullptr, u"Tessara 1.0", {300, 420, 4500, 450}, u""},
      {&Label1[1], "Label1", 1, nullptr, kCredit, {300, 1020, 4500, 300}, u""},
      {&cmdOK, "cmdOK", kNoIndex, nullptr, u"OK", {1890, 2400, 1320, 480}, u""},
      {&Label2, "Label2", kNoIndex, nullptr, u"email author", {1500, 1500, 2100, 300}, u""},
      {&Image1, "Image1", kNoIndex, nullptr, u"", {3780, 1410, 480, 480}, u"Envelope"},
  });
  for (Label& label : Label1) label.SetAlignment(Alignment::kCenter);
  Label1[0].SetFont({u"Georgia", 15.75, false, false, false});
  Label2.SetAlignment(Alignment::kCenter);
  Label2.SetFont({u"MS Serif", 9.75, false, false, true});
  Label2.SetForeColor(kLinkBlue);
  Label2.SetLink(true);
  Image1.SetPicture({"about_mail.png", 32, 32});
  Image1.SetVisible(false);
  cmdOK.SetDefaultAndCancel(true);
  cmdOK.onClick = [this] { cmdOK_Click(); };
  Label2.onClick = [this] { Label2_Click(); };
  Label2.onMouseMove = [this] { Label2_MouseMove(); };
}

void frmAbout::Form_Load() {
  SetTop((app_.frame.Height() - Height()) / 2);
  SetLeft((app_.frame.Width() - Width()) / 2);
}

void frmAbout::Form_MouseMove() {
  Label2.SetBold(false);
  Image1.SetVisible(false);
}

void frmAbout::Label2_MouseMove() {
  Label2.SetBold(true);
  Image1.SetVisible(true);
}

void frmAbout::Label2_Click() {
  SendMailTo(*this, u"mailto:tessara@example.org?SUBJECT=Re: Tessara 1.0", ShowState::kNormal,
             app_.machine);
  Unload();
}

}  // namespace tessara
