#include "shell/about_box.h"

#include "shell/documents.h"

namespace tessara {

namespace {

constexpr int kWidth = 5220;
constexpr int kHeight = 3690;
constexpr TextView kCredit = u"Flash cards by the Tessara developers";
constexpr Color kLinkBlue = FixedColor(0, 0, 238);

}  // namespace

AboutBox::AboutBox(AppContext& app)
    : Form(app.windows, "frmAbout", FormKind::kDialog, u"About"), app_(app) {
  SetWidth(kWidth);
  SetHeight(kHeight);
  AddControls({
      {&outerRule[0], nullptr, u"", {120, 120, 4860, 15}, u""},
      {&outerRule[1], nullptr, u"", {120, 3165, 4860, 15}, u""},
      {&outerRule[2], nullptr, u"", {120, 120, 15, 3060}, u""},
      {&outerRule[3], nullptr, u"", {4965, 120, 15, 3060}, u""},
      {&innerRule[0], nullptr, u"", {180, 180, 4740, 15}, u""},
      {&innerRule[1], nullptr, u"", {180, 3105, 4740, 15}, u""},
      {&innerRule[2], nullptr, u"", {180, 180, 15, 2940}, u""},
      {&innerRule[3], nullptr, u"", {4905, 180, 15, 2940}, u""},
      {&title, nullptr, u"Tessara 1.0", {300, 420, 4500, 450}, u""},
      {&credit, nullptr, kCredit, {300, 1020, 4500, 300}, u""},
      {&ok, nullptr, u"OK", {1890, 2400, 1320, 480}, u""},
      {&mailLink, nullptr, u"email author", {1500, 1500, 2100, 300}, u""},
      {&envelope, nullptr, u"", {3780, 1410, 480, 480}, u"Envelope"},
  });
  title.SetAlignment(Alignment::kCenter);
  credit.SetAlignment(Alignment::kCenter);
  title.SetFont({u"Georgia", 15.75, false, false, false});
  mailLink.SetAlignment(Alignment::kCenter);
  mailLink.SetFont({u"MS Serif", 9.75, false, false, true});
  mailLink.SetForeColor(kLinkBlue);
  mailLink.SetLink(true);
  envelope.SetPicture({"about_mail.png", 32, 32});
  envelope.SetVisible(false);
  ok.SetDefaultAndCancel(true);
  ok.onClick = [this] { Unload(); };
  mailLink.onClick = [this] { WriteMail(); };
  mailLink.onMouseMove = [this] { PointToLink(); };
}

void AboutBox::OnLoad() {
  SetTop((app_.frame.Height() - Height()) / 2);
  SetLeft((app_.frame.Width() - Width()) / 2);
}

void AboutBox::OnMouseMove() {
  mailLink.SetBold(false);
  envelope.SetVisible(false);
}

void AboutBox::PointToLink() {
  mailLink.SetBold(true);
  envelope.SetVisible(true);
}

void AboutBox::WriteMail() {
  SendMailTo(u"mailto:tessara@example.org?SUBJECT=Re: Tessara 1.0", app_.machine);
  Unload();
}

}  // namespace tessara
