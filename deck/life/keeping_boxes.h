#pragma once

#include "deck/life/unsaved_deck.h"
#include "machine/dialogs.h"
#include "machine/message_box.h"

namespace tessara {

// Boxes and dialogs that come up once the unsaved deck is kept: the program may end in each.

class KeepingMessages : public MessageBoxes {
 public:
  KeepingMessages(MessageBoxes& boxes, UnsavedDeck& unsaved) : boxes_(boxes), unsaved_(unsaved) {}

  MessageAnswer Show(const Text& text, int flags, const Text& title) override {
    unsaved_.BeforeBox();
    return boxes_.Show(text, flags, title);
  }

 private:
  MessageBoxes& boxes_;
  UnsavedDeck& unsaved_;
};

class KeepingDialogs : public Dialogs {
 public:
  KeepingDialogs(Dialogs& dialogs, UnsavedDeck& unsaved) : dialogs_(dialogs), unsaved_(unsaved) {}

  Text AskFile(const FileDialogRequest& request) override {
    unsaved_.BeforeBox();
    return dialogs_.AskFile(request);
  }
  std::optional<Text> AskText(const Text& prompt, const Text& title,
                              const Text& defaultText) override {
    unsaved_.BeforeBox();
    return dialogs_.AskText(prompt, title, defaultText);
  }
  PrinterChoice AskPrinter() override {
    unsaved_.BeforeBox();
    return dialogs_.AskPrinter();
  }

 private:
  Dialogs& dialogs_;
  UnsavedDeck& unsaved_;
};

}  // namespace tessara
