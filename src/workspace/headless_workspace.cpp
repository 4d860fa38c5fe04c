// The headless workspace: its work files, its console questions, and the colour runs and passes
// of its document.
#include "workspace/headless_workspace.h"

#include <filesystem>
#include <iostream>
#include <random>

#include "document/case_change.h"
#include "document/line_ending_checks.h"
#include "format/colorizer.h"
#include "format/pass_frame.h"
#include "format/scheme_data_file.h"
#include "platform/app_names.h"
#include "platform/bytes.h"
#include "platform/file_system.h"
#include "platform/pass_monitor.h"
#include "transform/junk_filter.h"
#include "transform/spaces.h"

namespace fs = std::filesystem;

namespace lathwick {

namespace {
std::string freshWorkFolder() {
  std::random_device random;
  const fs::path folder = fs::temp_directory_path() / ("lathwick-" + std::to_string(random()));
  fs::create_directories(folder);
  return folder.string() + "/";
}
}  // namespace

HeadlessWorkspace::HeadlessWorkspace(HeadlessSettings settings, std::ostream& out, std::istream& in)
    : settings_(std::move(settings)), out_(out), in_(in) {
  if (settings_.workFolder.empty()) {
    settings_.workFolder = freshWorkFolder();
    ownsWorkFolder_ = true;
  } else {
    std::error_code ignored;
    fs::create_directories(settings_.workFolder, ignored);
    if (!isPathSeparator(settings_.workFolder.back())) settings_.workFolder += "/";
  }
  registerHeadlessDocumentCommands(commands_, *this);
}

HeadlessWorkspace::~HeadlessWorkspace() {
  std::error_code ignored;
  if (ownsWorkFolder_) fs::remove_all(settings_.workFolder, ignored);
}

HeadlessDocument& HeadlessWorkspace::open(const std::string& path) {
  document_ = std::make_unique<HeadlessDocument>(*this, path);
  return *document_;
}

std::vector<WorkspaceDocument*> HeadlessWorkspace::openDocuments() {
  if (!document_) return {};
  return {document_.get()};
}

std::string HeadlessWorkspace::inputWorkFile() const { return settings_.workFolder + "TEMP2.TXT"; }
std::string HeadlessWorkspace::outputWorkFile() const { return settings_.workFolder + "TEMP3.TXT"; }

Answer HeadlessWorkspace::messageBox(const std::string& text, const std::string&, Buttons buttons, Icon) {
  out_ << text << '\n';
  out_.flush();
  return buttons == Buttons::Ok || buttons == Buttons::OkCancel ? Answer::Ok : Answer::Yes;
}

std::optional<std::string> HeadlessWorkspace::inputBox(const std::string& prompt, const std::string&,
                                                       const std::string&) {
  out_ << prompt << '\n';
  out_.flush();
  std::string line;
  if (!std::getline(in_, line)) return std::nullopt;
  if (!line.empty() && line.back() == '\r') line.pop_back();
  return line;
}

std::optional<std::string> HeadlessWorkspace::chooseFile(const FileRequest&) { return std::nullopt; }

void HeadlessDocument::colorize(ColorizeRun run) {
  const std::string in = workspace_.inputWorkFile(), out = workspace_.outputWorkFile();
  if (!writeInput(in)) return;  // no input file: the run does nothing and says nothing
  if (run == ColorizeRun::Reload) {
    loadPlain(text_.str());
    return;
  }
  const SchemeRecord scheme = loadScheme(workspace_.dataFile(), workspace_.currentScheme());
  const PassResult result =
      colorizeFile(scheme, run == ColorizeRun::Modes ? ColorizeView::Modes : ColorizeView::Codes, in, out,
                   silentMonitor());
  takeOutput(result, out, true);  // the colorizer writes rich text whatever the work file is called
}

void HeadlessDocument::takeOutput(const PassResult& result, const std::string& path, bool rich) {
  const PassReport report = reportOf(result);
  if (result.outcome == PassOutcome::Completed && result.reload) {
    if (rich) loadRich(path);
    else if (std::optional<std::string> bytes = readWholeFile(path)) loadPlain(std::move(*bytes));
  } else if (report.shown) {
    workspace_.messageBox(report.text, report.caption, Buttons::Ok, report.icon);
  }
}

void HeadlessDocument::runPass(DocumentPassKind pass) {
  const std::string in = workspace_.inputWorkFile(), out = workspace_.outputWorkFile();
  if (!writeInput(in)) return;
  const std::string comment = commentStartText(workspace_.dataFile(), workspace_.currentScheme());
  PassResult result;
  switch (pass) {
    case DocumentPassKind::AddSpaces:
      result = transform::runAddSpaces(in, out, comment, silentMonitor());
      break;
    case DocumentPassKind::RemoveSpaces:
      result = transform::runRemoveSpaces(in, out, comment, silentMonitor());
      break;
    case DocumentPassKind::JunkFilter:
      result = transform::runJunkFilter(in, out, silentMonitor());
      break;
  }
  takeOutput(result, out, false);
}

void HeadlessDocument::operate(const transform::OperateEntries& entries) {
  const transform::OperateValidation check = transform::validateOperate(entries);
  if (!check.message.empty()) {
    workspace_.messageBox(check.message, kAppTitle, Buttons::Ok, Icon::None);
    return;
  }
  const std::string in = workspace_.inputWorkFile(), out = workspace_.outputWorkFile();
  if (!writeInput(in)) return;
  transform::OperateRequest request;
  request.addresses = entries.address;
  request.op = entries.op.front();
  request.operand = transform::leadingValue(entries.value);
  request.format = entries.format;
  request.displayLineCount = lineCount();
  try {
    const SchemeRecord scheme = loadScheme(workspace_.dataFile(), workspace_.currentScheme());
    const PassFrame frame = makePassFrame(scheme);
    takeOutput(transform::runOperate(in, out, request, frame, silentMonitor()), out, true);
  } catch (const AppError& e) {
    workspace_.messageBox(std::string(e.what()) + transform::kOperateErrorEnding, kAppTitle, Buttons::Ok,
                          Icon::Exclamation);
  }
}

void registerHeadlessDocumentCommands(CommandDispatcher& commands, Workspace& workspace) {
  const auto onActive = [&workspace](auto action) {
    return [&workspace, action](int index) {
      if (WorkspaceDocument* document = workspace.activeDocument()) action(*document, index);
    };
  };
  commands.add("mnuSave", onActive([](WorkspaceDocument& d, int) { d.save(); }));
  commands.add("mnuModal", onActive([](WorkspaceDocument& d, int i) { d.colorize(static_cast<ColorizeRun>(i)); }));
  commands.add("mnuAddSpaces", onActive([](WorkspaceDocument& d, int) { d.runPass(DocumentPassKind::AddSpaces); }));
  commands.add("mnuRemove", onActive([](WorkspaceDocument& d, int) { d.runPass(DocumentPassKind::RemoveSpaces); }));
  commands.add("mnuJunkFilter", onActive([](WorkspaceDocument& d, int) { d.runPass(DocumentPassKind::JunkFilter); }));
  commands.add("mnuSelectAll", onActive([](WorkspaceDocument& d, int) { d.setSelection(0, d.textLength()); }));
  const auto changeCase = [](std::string (*convert)(std::string_view)) {
    return [convert](WorkspaceDocument& d, int) {
      const long start = d.selectionStart();
      if (d.selectionLength() == 0) return;
      d.replaceSelection(convert(d.selectedText()));
      d.setSelection(start, d.selectionLength());
    };
  };
  commands.add("mnuUcase", onActive(changeCase(&asciiUpper)));
  commands.add("mnuLcase", onActive(changeCase(&asciiLower)));
  commands.add("mnuTitlecase", onActive(changeCase(&properCase)));
}

}  // namespace lathwick
