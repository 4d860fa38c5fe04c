#pragma once
// The Variant value of the macro language: a tagged value with the language's subtypes, arrays
// with value semantics (shared storage, copied on the first write) and reference-counted
// objects (deterministic release, so a class's terminate handler runs at the last release).
#include <cstdint>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace lathwick::vbs {

enum class VT : std::uint16_t {
  Empty = 0,
  Null = 1,
  Integer = 2,
  Long = 3,
  Single = 4,
  Double = 5,
  Currency = 6,
  Date = 7,
  String = 8,
  Object = 9,
  Error = 10,
  Boolean = 11,
  Byte = 17,
  Array = 8204,  // vbArray + vbVariant: every array of the language holds Variants
};

class Object;
class Runtime;

// Intrusive reference to an Object; a null ObjRef is the value Nothing.
class ObjRef {
 public:
  ObjRef() = default;
  explicit ObjRef(Object* p);
  ObjRef(const ObjRef& o);
  ObjRef(ObjRef&& o) noexcept : p_(o.p_) { o.p_ = nullptr; }
  ObjRef& operator=(const ObjRef& o);
  ObjRef& operator=(ObjRef&& o) noexcept;
  ~ObjRef();
  Object* get() const { return p_; }
  Object* operator->() const { return p_; }
  explicit operator bool() const { return p_ != nullptr; }
  bool operator==(const ObjRef& o) const { return p_ == o.p_; }

 private:
  Object* p_ = nullptr;
};

struct ArrayData;

class Variant {
 public:
  Variant() = default;
  static Variant null() { Variant v; v.type_ = VT::Null; return v; }
  static Variant integer(std::int32_t i) { Variant v; v.type_ = VT::Integer; v.i_ = i; return v; }
  static Variant longv(std::int32_t i) { Variant v; v.type_ = VT::Long; v.i_ = i; return v; }
  static Variant byte(std::int32_t i) { Variant v; v.type_ = VT::Byte; v.i_ = i; return v; }
  static Variant boolean(bool b) { Variant v; v.type_ = VT::Boolean; v.i_ = b ? -1 : 0; return v; }
  static Variant dbl(double d) { Variant v; v.type_ = VT::Double; v.d_ = d; return v; }
  static Variant single(double d) { Variant v; v.type_ = VT::Single; v.d_ = static_cast<float>(d); return v; }
  static Variant date(double d) { Variant v; v.type_ = VT::Date; v.d_ = d; return v; }
  static Variant str(std::string s) { Variant v; v.type_ = VT::String; v.s_ = std::move(s); return v; }
  static Variant object(ObjRef o) { Variant v; v.type_ = VT::Object; v.o_ = std::move(o); return v; }
  static Variant nothing() { return object(ObjRef()); }
  static Variant array(std::shared_ptr<ArrayData> a) { Variant v; v.type_ = VT::Array; v.a_ = std::move(a); return v; }
  // Integer if it fits 16 bits, else Long if 32, else Double: the typing of integer literals.
  static Variant fitted(long long n);

  Variant(const Variant& o);
  Variant(Variant&& o) noexcept = default;
  Variant& operator=(const Variant& o);
  Variant& operator=(Variant&& o) noexcept = default;

  VT type() const { return type_; }
  bool isEmpty() const { return type_ == VT::Empty; }
  bool isNull() const { return type_ == VT::Null; }
  bool isString() const { return type_ == VT::String; }
  bool isObject() const { return type_ == VT::Object; }
  bool isArray() const { return type_ == VT::Array; }
  bool isNothing() const { return type_ == VT::Object && !o_; }
  bool isIntegral() const {
    return type_ == VT::Integer || type_ == VT::Long || type_ == VT::Byte || type_ == VT::Boolean;
  }
  bool isFloating() const { return type_ == VT::Double || type_ == VT::Single || type_ == VT::Date; }
  bool isNumeric() const { return isIntegral() || isFloating() || type_ == VT::Empty; }

  std::int32_t intValue() const { return i_; }
  double dblValue() const { return d_; }
  bool boolValue() const { return i_ != 0; }
  const std::string& strValue() const { return s_; }
  std::string& strRef() { return s_; }
  const ObjRef& objValue() const { return o_; }
  const std::shared_ptr<ArrayData>& arrValue() const { return a_; }
  // The array for writing: unshares the storage first (copy on write).
  ArrayData& arrayForWrite();
  // Numeric value of a number-typed Variant (not for strings/objects).
  double number() const { return isIntegral() ? static_cast<double>(i_) : (isFloating() ? d_ : 0.0); }

 private:
  VT type_ = VT::Empty;
  union {
    std::int32_t i_;
    double d_ = 0;
  };
  std::string s_;
  ObjRef o_;
  std::shared_ptr<ArrayData> a_;
};

// Array storage: bounds per dimension (lower bound is always 0), elements with the first
// index varying fastest. `locks` counts element references lent to ByRef parameters and For
// Each loops; a locked array cannot be resized or erased and is never shared.
struct ArrayData {
  std::vector<std::int32_t> upper;  // upper bound per dimension; empty means not allocated
  std::vector<Variant> items;
  bool fixed = false;
  int locks = 0;
  ArrayData() = default;
  ArrayData(const ArrayData&) = default;
  ArrayData& operator=(const ArrayData&) = default;
  ~ArrayData();  // releases nested arrays one after another, not recursively
  bool allocated() const { return !upper.empty(); }
  // Elements for these bounds; error 7 beyond kMaxElements.
  static constexpr std::size_t kMaxElements = std::size_t{1} << 24;
  static std::size_t elementCount(const std::vector<std::int32_t>& upperBounds);
  static std::shared_ptr<ArrayData> make(std::vector<std::int32_t> upperBounds, bool fixed);
  static std::shared_ptr<ArrayData> ofValues(std::vector<Variant> values);
};

// What an object member access asks for.
enum class InvokeKind { Get, Let, Set, Call };

using ArgRefs = std::vector<Variant*>;

// Base of every object a script sees: script class instances, host objects, Err, RegExp.
class Object {
 public:
  virtual ~Object() = default;
  virtual std::string typeName() const { return "Object"; }
  // Case-insensitive member lookup; -1 when the object has no such member.
  virtual int findMember(std::string_view name) const = 0;
  // The member used by obj(args), x = obj and the like; -1 when there is none.
  virtual int defaultMember() const { return -1; }
  // `inside` is true when called from the object's own methods (private members allowed).
  // Arguments are references: a callee may write through them for ByRef parameters.
  virtual Variant invoke(Runtime& rt, int member, InvokeKind kind, const ArgRefs& args, bool inside) = 0;
  // For Each: fills `out` with the elements and returns true, or false when not a collection.
  virtual bool enumerate(Runtime&, std::vector<Variant>&) { return false; }
  // Objects whose member ids depend only on their type return a key for that type, so that a
  // call site can cache the id it looked up.
  virtual const void* memberTableKey() const { return nullptr; }

  void addRef() { ++refs_; }
  void release();

 protected:
  // Called when the last reference goes; the default deletes the object.
  virtual void lastReleased() { delete this; }
  int refs_ = 0;
};

template <class T, class... A>
ObjRef makeObject(A&&... a) {
  return ObjRef(new T(std::forward<A>(a)...));
}

}  // namespace lathwick::vbs
