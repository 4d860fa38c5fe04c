#pragma once
// The workspace without windows: one document loaded from a file, held in memory, for the batch
// tool. Its runs and passes go through the same core code and work files as the editor's, its
// Save writes as the editor's Save does (rich text for an .RTF name), and its questions are
// answered on the console: a message box prints its text, an input box reads a line.
#include <iosfwd>
#include <memory>
#include <string>
#include <vector>

#include "document/gap_text.h"
#include "document/rtf_styling.h"
#include "document/style_table.h"
#include "platform/pass_result.h"
#include "transform/operate.h"
#include "workspace/command_dispatch.h"
#include "workspace/workspace.h"

namespace lathwick {

class HeadlessWorkspace;

class HeadlessDocument : public WorkspaceDocument {
 public:
  // Loads `path` (rich text when its name ends in .RTF); throws AppError when it cannot.
  HeadlessDocument(HeadlessWorkspace& workspace, const std::string& path);

  std::string text() const override { return text_.str(); }
  long textLength() const override { return static_cast<long>(text_.size()); }
  std::string textRange(long start, long length) const override;
  long selectionStart() const override { return selStart_; }
  long selectionLength() const override { return selLength_; }
  std::string selectedText() const override;
  void setSelection(long start, long length) override;
  void replaceSelection(std::string_view text) override;

  long lineCount() const override;
  long lineFromChar(long position) const override;
  long lineIndex(long line) const override;
  long lineLength(long line) const override;

  std::string fileName() const override { return fileName_; }
  bool save() override;
  // Saves under another name, as Save As does.
  bool saveAs(const std::string& path);

  std::string scheme() const override;
  void setScheme(const std::string& name) override;
  void colorize(ColorizeRun run) override;
  void runPass(DocumentPassKind pass) override;
  // The operate dialog's OK over the whole document with these entries, as a macro runs it.
  void operate(const transform::OperateEntries& entries);

 private:
  void load(const std::string& path);
  void loadRich(const std::string& path);
  void loadPlain(std::string bytes);
  const std::vector<long>& lineStarts() const;
  void textChanged(long at, long removed, std::string_view inserted);
  bool writeInput(const std::string& path);
  // A completed run's output enters the document; any other outcome is told as the editor
  // tells it.
  void takeOutput(const PassResult& result, const std::string& path, bool rich);

  HeadlessWorkspace& workspace_;
  std::string fileName_;
  GapText text_;
  GapText styles_;               // one style byte per character; empty: plain text, all default
  std::vector<TextRange> strikeouts_;
  StyleTable table_;
  int indentTwips_ = 0;
  long selStart_ = 0, selLength_ = 0;
  // The line starts, kept across the edits a macro makes line by line: an edit that adds or
  // removes no line break only moves the starts after it, which is done lazily (every start
  // after line shiftFrom_ is off by shift_) so that a pass over all lines stays linear.
  mutable std::vector<long> starts_;
  mutable bool startsValid_ = false;
  mutable long shiftFrom_ = 0, shift_ = 0;
  long startAt(long line) const;
};

struct HeadlessSettings {
  std::string dataFile;   // the scheme data file
  int scheme = 1;         // the current scheme's record number
  std::string workFolder; // where the work files go; "" for a fresh folder under the system's temp
};

class HeadlessWorkspace : public Workspace {
 public:
  HeadlessWorkspace(HeadlessSettings settings, std::ostream& out, std::istream& in);
  ~HeadlessWorkspace() override;
  HeadlessWorkspace(const HeadlessWorkspace&) = delete;
  HeadlessWorkspace& operator=(const HeadlessWorkspace&) = delete;

  // Opens the one document (replacing any open one); throws AppError when it cannot be read.
  HeadlessDocument& open(const std::string& path);

  WorkspaceDocument* activeDocument() override { return document_.get(); }
  std::vector<WorkspaceDocument*> openDocuments() override;
  int currentScheme() const override { return settings_.scheme; }
  void setCurrentScheme(int scheme) { settings_.scheme = scheme; }
  void setStatusText(const std::string& text) override { status_ = text; }
  const std::string& statusText() const { return status_; }

  Answer messageBox(const std::string& text, const std::string& caption, Buttons buttons, Icon icon) override;
  std::optional<std::string> inputBox(const std::string& prompt, const std::string& caption,
                                      const std::string& defaultText) override;
  std::optional<std::string> chooseFile(const FileRequest& request) override;
  bool runCommand(const std::string& name, int index = -1) override { return commands_.run(name, index); }
  CommandDispatcher& commands() { return commands_; }

  const std::string& dataFile() const { return settings_.dataFile; }
  std::string inputWorkFile() const;
  std::string outputWorkFile() const;

 private:
  HeadlessSettings settings_;
  bool ownsWorkFolder_ = false;
  std::ostream& out_;
  std::istream& in_;
  std::string status_;
  CommandDispatcher commands_;
  std::unique_ptr<HeadlessDocument> document_;
};

// The commands a document has without windows (Save, the colour runs and the Options passes,
// Select All and the case changes), on the workspace's active document.
void registerHeadlessDocumentCommands(CommandDispatcher& commands, Workspace& workspace);

}  // namespace lathwick
