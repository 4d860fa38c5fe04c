#pragma once
// Answers every question the program asks from queues, records what it was asked, and is the
// program's dialogs for as long as it lives.
#include <deque>
#include <optional>
#include <ostream>
#include <string>
#include <vector>

#include "platform/gui/dialogs.h"

namespace lathwick::test {

class ScriptedDialogs : public gui::Dialogs {
 public:
  struct Message {
    std::string text, caption;
    gui::Buttons buttons;
    gui::Icon icon;
    bool operator==(const Message&) const = default;
    friend void PrintTo(const Message& m, std::ostream* os) {
      *os << "{\"" << m.text << "\", \"" << m.caption << "\", buttons " << static_cast<int>(m.buttons) << ", icon "
          << static_cast<int>(m.icon) << "}";
    }
  };
  std::deque<gui::Answer> answers;               // default: Ok / Cancel for questions
  std::deque<std::optional<std::string>> files;  // default: cancelled
  std::vector<Message> messages;
  std::vector<gui::FileRequest> requests;
  std::vector<std::string> opened;
  std::deque<std::optional<std::string>> texts;  // answers to one-line queries; default: cancelled
  std::vector<std::string> queries;              // the captions of the queries asked

  gui::Answer message(const std::string& text, const std::string& caption, gui::Buttons buttons,
                      gui::Icon icon) override {
    messages.push_back({text, caption, buttons, icon});
    if (answers.empty()) return buttons == gui::Buttons::Ok ? gui::Answer::Ok : gui::Answer::Cancel;
    const gui::Answer a = answers.front();
    answers.pop_front();
    return a;
  }
  std::optional<std::string> chooseFile(const gui::FileRequest& request) override {
    requests.push_back(request);
    if (files.empty()) return std::nullopt;
    auto f = files.front();
    files.pop_front();
    return f;
  }
  void openInBrowser(const std::string& path) override { opened.push_back(path); }
  std::optional<std::string> askText(const std::string&, const std::string& caption, const std::string&) override {
    queries.push_back(caption);
    if (texts.empty()) return std::nullopt;
    auto t = texts.front();
    texts.pop_front();
    return t;
  }

 private:
  gui::ScopedDialogs installed_{*this};
};
using Message = ScriptedDialogs::Message;

}  // namespace lathwick::test
