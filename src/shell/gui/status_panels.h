#pragma once
// The frame's status bar: message, range, date, time, the three lock keys, a blank panel and
// three bookmark panels. Panels are found by their key ("Stat", "Range", "Book1" ...).
#include <QLabel>
#include <QObject>
#include <map>
#include <optional>
#include <string>

class QStatusBar;
class QTimer;

namespace lathwick::gui {

inline constexpr const char* kHelpPrompt = "Press {F1} for help";
inline constexpr const char* kBookmarkTip = "Right button to set bookmark, left to go to it.";

// A status panel that reports mouse presses (the bookmarks use them).
class StatusPanel : public QLabel {
  Q_OBJECT
 public:
  using QLabel::QLabel;
  std::optional<int> tag;  // a bookmark's stored line (0-based)
 signals:
  void pressed(Qt::MouseButton button);

 protected:
  void mousePressEvent(QMouseEvent* event) override;
};

class StatusPanels : public QObject {
  Q_OBJECT
 public:
  explicit StatusPanels(QStatusBar* bar);

  StatusPanel* panel(const std::string& key) const;  // nullptr when unknown
  void setText(const std::string& key, const std::string& text);
  std::string text(const std::string& key) const;

  void setOverwrite(bool overwrite);   // the INS panel is lit while typing inserts
  void setLockKeys(bool caps, bool num);
  void refreshClock();

  // The bookmark panel now marked (1-3), 0 before any was clicked.
  int markedBookmark() const { return marked_; }
  void markBookmark(int number);

 signals:
  void bookmarkPressed(int number, Qt::MouseButton button);
  void messagePressed();  // a click on the message panel

 private:
  StatusPanel* add(const std::string& key, const QString& text, int twips, bool stretch = false);
  std::map<std::string, StatusPanel*> panels_;
  QTimer* clock_;
  int marked_ = 0;
};

// Panel widths are given in twips; the screen has 15 twips to a pixel at the usual 96 dpi.
inline int twipsToPixels(double twips) { return static_cast<int>(twips / 15.0 + 0.5); }
inline double pixelsToTwips(int pixels) { return pixels * 15.0; }

}  // namespace lathwick::gui
