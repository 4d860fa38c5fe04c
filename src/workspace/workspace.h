#pragma once
// The workspace: everything a command or a script may ask of the program, without knowing
// whether a window is behind it. The editor's frame implements it over its document windows;
// HeadlessWorkspace implements it over one document loaded from a file, for the batch tool.
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "platform/questions.h"

namespace lathwick {

// How Colorize treats the document: colours by modes, by codes, or reloads it as plain text.
enum class ColorizeRun { Modes = 0, Codes = 1, Reload = 2 };

// The plain-text passes of the Options menu that need no dialog.
enum class DocumentPassKind { AddSpaces, RemoveSpaces, JunkFilter };

// One open document as a command or a script sees it. Positions and lengths count bytes of the
// text as the control holds it (lines separated by CR LF); lines are 0-based.
class WorkspaceDocument {
 public:
  virtual ~WorkspaceDocument() = default;

  virtual std::string text() const = 0;
  virtual long textLength() const = 0;
  // `length` characters from `start` (clipped to the text), without copying the rest.
  virtual std::string textRange(long start, long length) const = 0;
  virtual long selectionStart() const = 0;
  virtual long selectionLength() const = 0;  // the corrected length, never negative
  virtual std::string selectedText() const = 0;
  virtual void setSelection(long start, long length) = 0;
  virtual void replaceSelection(std::string_view text) = 0;

  // The line services of the line model: an empty text has one line.
  virtual long lineCount() const = 0;
  virtual long lineFromChar(long position) const = 0;
  virtual long lineIndex(long line) const = 0;   // position of the line's first character
  virtual long lineLength(long line) const = 0;  // without its break

  virtual std::string fileName() const = 0;
  // Saves as the Save command does (asks for a name first when the document has none). False
  // when nothing was saved.
  virtual bool save() = 0;

  // The caption of the document's scheme, and choosing one by caption (colours the document by
  // modes, as the Scheme menu does; an unknown caption does nothing).
  virtual std::string scheme() const = 0;
  virtual void setScheme(const std::string& name) = 0;

  // The colour runs and passes, through the work files, as their menu commands run them: the
  // result comes back in as a whole-document reload that Undo can take back; problems are told
  // through the workspace's message box.
  virtual void colorize(ColorizeRun run) = 0;
  virtual void runPass(DocumentPassKind pass) = 0;
};

class Workspace {
 public:
  virtual ~Workspace() = default;

  // The active document (nullptr when none is open) and every open one, in the order opened.
  virtual WorkspaceDocument* activeDocument() = 0;
  virtual std::vector<WorkspaceDocument*> openDocuments() = 0;

  // The current scheme's record number (1-based).
  virtual int currentScheme() const = 0;

  // The first panel of the status bar.
  virtual void setStatusText(const std::string& text) = 0;

  // The questions the program asks.
  virtual Answer messageBox(const std::string& text, const std::string& caption, Buttons buttons, Icon icon) = 0;
  // The text entered, or nothing when the user cancelled.
  virtual std::optional<std::string> inputBox(const std::string& prompt, const std::string& caption,
                                              const std::string& defaultText) = 0;
  // The chosen path, or nothing when the user cancelled.
  virtual std::optional<std::string> chooseFile(const FileRequest& request) = 0;

  // Runs a command by its menu name (and index for numbered entries); false when the program
  // has no such command.
  virtual bool runCommand(const std::string& name, int index = -1) = 0;
};

}  // namespace lathwick
