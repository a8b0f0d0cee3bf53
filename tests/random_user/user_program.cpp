#include "tests/random_user/user_program.h"

#include <QCoreApplication>
#include <algorithm>
#include <filesystem>

#include "machine/message_box.h"
#include "tests/random_user/card_record.h"

namespace tessara::test {

MessageAnswer ToldBoxes::Show(const Text& text, int flags, const Text& title) {
  story_.lastBox = ToUtf8(text);
  if (title == u"Import Error") story_.importBroke = true;
  const MessageAnswer answer = shown_.Show(text, flags, title);
  if (title == u"Unsaved Changes: " && answer != MessageAnswer::kYes) work_.GiveUp();
  if (title.starts_with(u"Delete Card") && answer != MessageAnswer::kNo) work_.MayLoseOne();
  return answer;
}

Text ToldDialogs::AskFile(const FileDialogRequest& request) {
  Text chosen = QtDialogs::AskFile(request);
  story_.lastFile = std::filesystem::path(ToUtf8(chosen)).filename();
  story_.imports = story_.lastFile.ends_with(".txt");
  return chosen;
}

void UserDesktop::ShowHelp(const Text& path) {
  (void)path;
  ShowHelpWithModule(FromUtf8(TESSARA_TEST_MODULES), FromUtf8(TESSARA_TEST_HELP));
}

void UserDesktop::Yield() {
  QCoreApplication::processEvents();
}

UserProgram::UserProgram() {
  boxes_.SetWindows(program.Windows());
  dialogs_.SetWindows(program.Windows());
  program.Windows().SetRenderer(renderer_);
  fakes_.settings.values = {{u"ShowSplash", u"0"}, {u"FirstLoad", u"False"}};
}

bool UserProgram::BuilderIsLoaded() {
  const auto& loaded = program.Windows().LoadedForms();
  return std::any_of(loaded.begin(), loaded.end(), [](const Form* form) {
    return form->Name() == "frmEssay" || form->Name() == "frmQuestion";
  });
}

std::size_t UserProgram::LostCards() {
  if (BuilderIsLoaded()) work_.MayLoseOne();
  const bool ended = program.Windows().ExitStatus().has_value();
  const KeptWork::Cards inTable = ended ? KeptWork::Cards() : CardsOf(program.State());
  const std::size_t lost = work_.Look(inTable);
  if (story.imports) work_.GiveUp();
  return lost;
}

}  // namespace tessara::test
