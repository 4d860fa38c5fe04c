#pragma once
// What a host program implements to embed the macro engine: objects whose members scripts can
// use, and the user-interface callbacks behind MsgBox and InputBox.
#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "extend/vbscript/errors.h"
#include "extend/vbscript/variant.h"

namespace lathwick::vbs {

// Base for host objects. A host object implements findMember (name -> id, -1 when unknown,
// case-insensitive) and hostInvoke; it may override typeName (TypeName's answer),
// defaultMember (the id used by `obj(args)` and `x = obj`) and enumerate (For Each).
// Members are invoked by id:
//   Get  - a property read, or a method used for its value (`x = o.M(1)`)
//   Let  - a property write; the value is the last argument
//   Set  - an object property write (`Set o.P = x`); the value is the last argument
//   Call - a method called as a statement; the result is ignored
// A host reports failure by throwing ScriptError (number, description, source) or AppError;
// either becomes the script's Err. Changing an element of `args` writes it back to the
// caller's variable when the argument was a plain variable or array element (ByRef output).
class HostObject : public Object {
 public:
  virtual Variant hostInvoke(int member, InvokeKind kind, std::vector<Variant>& args) = 0;
  Variant invoke(Runtime& rt, int member, InvokeKind kind, const ArgRefs& args, bool inside) final;
};

struct UiCallbacks {
  // Shows a message box; returns the button code (vbOK = 1 ...).
  std::function<int(const std::string& prompt, int buttons, const std::string& title)> msgBox;
  // Asks for a line of text; nullopt when cancelled (the script then receives "").
  std::function<std::optional<std::string>(const std::string& prompt, const std::string& title,
                                           const std::string& defaultText)>
      inputBox;
  // Called every 16384 loop turns or calls while a macro runs, so that a single-threaded host
  // can process pending events (the Esc key) and call Engine::interrupt().
  std::function<void()> poll;
};

}  // namespace lathwick::vbs
