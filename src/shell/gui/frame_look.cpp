#include "shell/gui/frame_look.h"

#include <Qsci/qsciscintilla.h>

#include <QFontMetrics>
#include <QStandardPaths>

static void initToolbarIcons() { Q_INIT_RESOURCE(icons); }

namespace lathwick::gui {

namespace {
struct IconName {
  const char* key;
  const char* name;  // a theme name, or the resource path of a drawing of our own
};
// Standard actions by their freedesktop names; the program's own commands by their drawings.
constexpr IconName kToolbarIcons[] = {
    {"New", "document-new"},          {"Open", "document-open"},       {"Save", "document-save"},
    {"Print", "document-print"},      {"Find", "edit-find"},           {"Cut", "edit-cut"},
    {"Copy", "edit-copy"},            {"Paste", "edit-paste"},         {"Delete", "edit-delete"},
    {"Undo", "edit-undo"},            {"Help", "help-contents"},       {"Codes", ":/toolbar/codes.svg"},
    {"Modes", ":/toolbar/modes.svg"}, {"Expand", ":/toolbar/expand.svg"}, {"Renumber", ":/toolbar/renumber.svg"},
    {"Comm", ":/toolbar/comm.svg"},
};
}  // namespace

void useFallbackIconTheme() {
  // Some platforms (offscreen, bare X servers) give Qt no icon folders to search: add the
  // system's, so that the installed themes are found.
  QStringList paths = QIcon::themeSearchPaths();
  for (const QString& folder :
       QStandardPaths::locateAll(QStandardPaths::GenericDataLocation, QStringLiteral("icons"), QStandardPaths::LocateDirectory))
    if (!paths.contains(folder)) paths.append(folder);
  QIcon::setThemeSearchPaths(paths);
  QIcon::setFallbackThemeName(QString::fromLatin1(kFallbackIconTheme));
  // Without a desktop session Qt names no theme (or only the bare "hicolor"), which has none of
  // the action icons.
  if (QIcon::themeName().isEmpty() || QIcon::themeName() == QLatin1String("hicolor"))
    QIcon::setThemeName(QString::fromLatin1(kFallbackIconTheme));
}

QIcon toolbarIcon(const std::string& key) {
  initToolbarIcons();
  for (const IconName& icon : kToolbarIcons) {
    if (key != icon.key) continue;
    const QString name = QString::fromLatin1(icon.name);
    return name.startsWith(QLatin1Char(':')) ? QIcon(name) : QIcon::fromTheme(name);
  }
  return {};
}

QIcon applicationIcon() {
  initToolbarIcons();
  return QIcon::fromTheme(QStringLiteral("org.lathwick.Lathwick"), QIcon(QStringLiteral(":/toolbar/lathwick.svg")));
}

void showLineNumbers(QWidget* textControl, bool on) {
  auto* scintilla = qobject_cast<QsciScintilla*>(textControl);
  if (!scintilla) return;
  scintilla->setMarginType(0, QsciScintilla::NumberMargin);
  scintilla->setMarginLineNumbers(0, on);
  // Room for six digits and a gap: programs of a hundred thousand lines keep whole numbers.
  const QString widest(7, QLatin1Char('9'));
  scintilla->setMarginWidth(0, on ? QFontMetrics(scintilla->font()).horizontalAdvance(widest) : 0);
}

}  // namespace lathwick::gui
