#include "workspace/application_object.h"

#include <algorithm>
#include <cctype>
#include <cmath>

#include "extend/vbscript/convert.h"
#include "extend/vbscript/member_table.h"
#include "platform/number_text.h"
#include "workspace/script_format.h"
#include "workspace/script_host.h"

namespace lathwick {

using vbs::HostArgs;
using vbs::MemberKind;
using vbs::MemberRow;
using vbs::Variant;

namespace {

struct App {
  Workspace* workspace;
  ScriptWindow* window;
};

std::string textOf(const Variant& v) {
  if (v.isObject() || v.isArray() || v.isNull()) return {};
  return vbs::plainText(v);
}

double numberOf(const Variant& v) {
  if (v.isNumeric()) return v.number();
  if (v.isString()) {
    if (std::optional<double> d = parseNumberText(v.strValue())) return *d;
  }
  return 0;
}

long longOf(const Variant& v) { return static_cast<long>(std::llround(numberOf(v))); }

std::string upper(std::string s) {
  std::transform(s.begin(), s.end(), s.begin(), [](unsigned char c) { return static_cast<char>(std::toupper(c)); });
  return s;
}

// A member of the active document: nothing (Empty) when no document is open.
template <class F>
Variant onDocument(App& app, F f) {
  WorkspaceDocument* d = app.workspace->activeDocument();
  if (!d) return {};
  return f(*d);
}

Variant none() { return {}; }

Variant operate(App& app, HostArgs& a) {
  const std::string address = upper(textOf(a[0])), op = upper(textOf(a[1])), value = upper(textOf(a[2]));
  if (!app.workspace->activeDocument()) return none();
  const std::string problem = operateArgumentProblem(address, op, value);
  if (!problem.empty()) {
    app.workspace->messageBox(problem, kOperateErrorCaption, Buttons::Ok, Icon::None);
    return none();
  }
  app.window->operate({textOf(a[0]), textOf(a[1]), textOf(a[2]), textOf(a[3])});
  return none();
}

Variant fmt(App&, HostArgs& a) {
  const Variant& value = a[0];
  const std::string format = textOf(a[1]);
  if (value.isEmpty() || value.isNull()) return Variant::str("");
  if (value.type() == vbs::VT::Date || (isDateFormat(format) && !value.isString()))
    return Variant::str(formatDateSerial(value.number(), format));
  if (value.isNumeric() || (value.isString() && parseNumberText(value.strValue())))
    return Variant::str(formatNumber(numberOf(value), format));
  return Variant::str(textOf(value));
}

constexpr MemberRow<App> kApplicationMembers[] = {
    {"LoadScriptFile", MemberKind::Method, 1, 1,
     [](App& app, HostArgs& a) {
       if (app.window->host) app.window->host->loadScriptFile(textOf(a[0]));
       return none();
     }},
    {"LoadMenuArray", MemberKind::Method, 0, 1, [](App& app, HostArgs&) { app.window->loadMenuArray(); return none(); }},
    {"DlgOpen", MemberKind::Method, 0, 0, [](App& app, HostArgs&) { app.window->dlgOpen(); return none(); }},
    {"ToolButtonsVisible", MemberKind::Let, 0, 0,
     [](App& app, HostArgs& a) { app.window->setToolButtonsVisible(numberOf(a.back()) != 0 || upper(textOf(a.back())) == "TRUE"); return none(); }},
    {"Fmt", MemberKind::Method, 2, 2, fmt},
    {"KeyPress", MemberKind::Method, 1, 1, [](App& app, HostArgs& a) { app.window->keyPress(textOf(a[0])); return none(); }},
    {"SelText", MemberKind::Get, 0, 0,
     [](App& app, HostArgs&) { return onDocument(app, [](WorkspaceDocument& d) { return Variant::str(d.selectedText()); }); }},
    {"SelText", MemberKind::Let, 0, 0,
     [](App& app, HostArgs& a) {
       // As in a text box: the text replaces the selection and the caret goes after it.
       return onDocument(app, [&](WorkspaceDocument& d) {
         const std::string text = textOf(a.back());
         const long start = d.selectionStart();
         d.replaceSelection(text);
         d.setSelection(start + static_cast<long>(text.size()), 0);
         return none();
       });
     }},
    {"SelLength", MemberKind::Get, 0, 0,
     [](App& app, HostArgs&) { return onDocument(app, [](WorkspaceDocument& d) { return Variant::longv(static_cast<int32_t>(d.selectionLength())); }); }},
    {"SelLength", MemberKind::Let, 0, 0,
     [](App& app, HostArgs& a) {
       return onDocument(app, [&](WorkspaceDocument& d) { d.setSelection(d.selectionStart(), std::max(0L, longOf(a.back()))); return none(); });
     }},
    {"SelStart", MemberKind::Get, 0, 0,
     [](App& app, HostArgs&) { return onDocument(app, [](WorkspaceDocument& d) { return Variant::longv(static_cast<int32_t>(d.selectionStart())); }); }},
    {"SelStart", MemberKind::Let, 0, 0,
     [](App& app, HostArgs& a) {
       return onDocument(app, [&](WorkspaceDocument& d) { d.setSelection(std::max(0L, longOf(a.back())), 0); return none(); });
     }},
    {"Text", MemberKind::Get, 0, 0,
     [](App& app, HostArgs&) { return onDocument(app, [](WorkspaceDocument& d) { return Variant::str(d.text()); }); }},
    {"Text", MemberKind::Let, 0, 0,
     [](App& app, HostArgs& a) {
       return onDocument(app, [&](WorkspaceDocument& d) {
         d.setSelection(0, d.textLength());
         d.replaceSelection(textOf(a.back()));
         d.setSelection(0, 0);
         return none();
       });
     }},
    {"LineCount", MemberKind::Get, 0, 0,
     [](App& app, HostArgs&) { return onDocument(app, [](WorkspaceDocument& d) { return Variant::longv(static_cast<int32_t>(d.lineCount())); }); }},
    {"LineText", MemberKind::Get, 0, 0,
     [](App& app, HostArgs&) { return onDocument(app, [](WorkspaceDocument& d) { return Variant::str(lineTextOf(d)); }); }},
    {"LineNumber", MemberKind::Get, 0, 0,
     [](App& app, HostArgs&) {
       return onDocument(app, [](WorkspaceDocument& d) { return Variant::longv(static_cast<int32_t>(d.lineFromChar(d.selectionStart()))); });
     }},
    {"filename", MemberKind::Get, 0, 0,
     [](App& app, HostArgs&) { return onDocument(app, [](WorkspaceDocument& d) { return Variant::str(d.fileName()); }); }},
    {"Save", MemberKind::Method, 0, 0,
     [](App& app, HostArgs&) { return onDocument(app, [](WorkspaceDocument& d) { d.save(); return none(); }); }},
    {"Scheme", MemberKind::Get, 0, 0,
     [](App& app, HostArgs&) { return onDocument(app, [](WorkspaceDocument& d) { return Variant::str(d.scheme()); }); }},
    {"Scheme", MemberKind::Let, 0, 0,
     [](App& app, HostArgs& a) { return onDocument(app, [&](WorkspaceDocument& d) { d.setScheme(textOf(a.back())); return none(); }); }},
    {"Colorize", MemberKind::Method, 1, 1,
     [](App& app, HostArgs& a) {
       const long mode = longOf(a[0]);
       return onDocument(app, [&](WorkspaceDocument& d) {
         if (mode >= 0 && mode <= 2) d.colorize(static_cast<ColorizeRun>(mode));
         return none();
       });
     }},
    {"AddSpaces", MemberKind::Method, 0, 0,
     [](App& app, HostArgs&) { return onDocument(app, [](WorkspaceDocument& d) { d.runPass(DocumentPassKind::AddSpaces); return none(); }); }},
    {"RemoveSpaces", MemberKind::Method, 0, 0,
     [](App& app, HostArgs&) { return onDocument(app, [](WorkspaceDocument& d) { d.runPass(DocumentPassKind::RemoveSpaces); return none(); }); }},
    {"JunkFilter", MemberKind::Method, 0, 0,
     [](App& app, HostArgs&) { return onDocument(app, [](WorkspaceDocument& d) { d.runPass(DocumentPassKind::JunkFilter); return none(); }); }},
    {"Operate", MemberKind::Method, 4, 4, operate},
    {"LikeString", MemberKind::Method, 2, 2,
     [](App&, HostArgs& a) {
       const std::string text = textOf(a[0]);
       return likeMatch(text, textOf(a[1])) ? Variant::longv(static_cast<int32_t>(text.size())) : Variant();
     }},
};

}  // namespace

std::string lineTextOf(const WorkspaceDocument& document) {
  const long line = document.lineFromChar(document.selectionStart());
  const long start = document.lineIndex(line);
  if (start <= 0) return {};
  return document.textRange(start - 1, document.lineLength(line) + 1);
}

std::string operateArgumentProblem(const std::string& address, const std::string& op, const std::string& value) {
  if (likeMatch(address, "[!A-Z]")) return kAddressMustBeLetter;
  if (!likeMatch(op, "[+-*/]")) return kOperatorMustBe;
  if (!likeMatch(value, "[0123456789.]")) return kValueMustBeNumber;
  return {};
}

void addApplicationObject(vbs::Engine& engine, Workspace& workspace, ScriptWindow& window) {
  vbs::addTableObject(engine, "Application", "Application", kApplicationMembers, App{&workspace, &window});
}

}  // namespace lathwick
