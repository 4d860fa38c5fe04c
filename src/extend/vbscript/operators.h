#pragma once
// The language's operators on Variants: arithmetic with its result types and overflow
// promotion, comparison with the literal rule, concatenation, and the bitwise/logical
// operators with three-valued Null logic.
#include "extend/vbscript/variant.h"

namespace lathwick::vbs {

class Runtime;

enum class BinOp {
  Add, Sub, Mul, Div, IntDiv, Mod, Pow, Concat,
  Eq, Ne, Lt, Gt, Le, Ge, Is,
  And, Or, Xor, Eqv, Imp,
};

Variant arith(Runtime& rt, BinOp op, const Variant& a, const Variant& b);
Variant concat(Runtime& rt, const Variant& a, const Variant& b);
Variant logical(Runtime& rt, BinOp op, const Variant& a, const Variant& b);
Variant negate(Runtime& rt, const Variant& a);
Variant notOp(Runtime& rt, const Variant& a);

// -1, 0, 1, or 2 when either side is Null. `aLit`/`bLit`: the operand is a numeric literal.
int compare(Runtime& rt, const Variant& a, const Variant& b, bool aLit, bool bLit);
Variant comparison(Runtime& rt, BinOp op, const Variant& a, const Variant& b, bool aLit, bool bLit);
bool sameObject(const Variant& a, const Variant& b);  // `Is`; 424 unless both are objects

}  // namespace lathwick::vbs
