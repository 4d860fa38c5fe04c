#include "extend/vbscript/variant.h"

#include "extend/vbscript/errors.h"

namespace lathwick::vbs {

ObjRef::ObjRef(Object* p) : p_(p) {
  if (p_) p_->addRef();
}
ObjRef::ObjRef(const ObjRef& o) : p_(o.p_) {
  if (p_) p_->addRef();
}
ObjRef& ObjRef::operator=(const ObjRef& o) {
  if (o.p_) o.p_->addRef();
  Object* old = p_;
  p_ = o.p_;
  if (old) old->release();
  return *this;
}
ObjRef& ObjRef::operator=(ObjRef&& o) noexcept {
  if (this != &o) {
    Object* old = p_;
    p_ = o.p_;
    o.p_ = nullptr;
    if (old) old->release();
  }
  return *this;
}
ObjRef::~ObjRef() {
  if (p_) p_->release();
}

void Object::release() {
  if (--refs_ != 0) return;
  // Releasing an object can release the objects it holds, and so on down a long chain; they
  // are queued and released one after another instead of recursively.
  thread_local bool releasing = false;
  thread_local std::vector<Object*> pending;
  if (releasing) {
    pending.push_back(this);
    return;
  }
  releasing = true;
  struct Done {
    ~Done() { releasing = false; }
  } done;
  lastReleased();
  while (!pending.empty()) {
    Object* next = pending.back();
    pending.pop_back();
    next->lastReleased();
  }
}

Variant Variant::fitted(long long n) {
  if (n >= -32768 && n <= 32767) return integer(static_cast<std::int32_t>(n));
  if (n >= INT32_MIN && n <= INT32_MAX) return longv(static_cast<std::int32_t>(n));
  return dbl(static_cast<double>(n));
}

Variant::Variant(const Variant& o) : type_(o.type_) {
  d_ = o.d_;
  switch (type_) {
    case VT::String: s_ = o.s_; break;
    case VT::Object: o_ = o.o_; break;
    case VT::Array:
      // An array lent out by reference is copied now: sharing it would let writes through
      // the reference reach the copy.
      if (o.a_ && o.a_->locks > 0) {
        a_ = std::make_shared<ArrayData>(*o.a_);
        a_->locks = 0;
      } else {
        a_ = o.a_;
      }
      break;
    default: break;
  }
}

Variant& Variant::operator=(const Variant& o) {
  if (this == &o) return *this;
  if (o.type_ == VT::String && type_ == VT::String) {
    s_ = o.s_;  // reuses this string's buffer
    return *this;
  }
  if (o.type_ != VT::Object && o.type_ != VT::Array && o.type_ != VT::String && type_ != VT::Object &&
      type_ != VT::Array) {
    type_ = o.type_;
    d_ = o.d_;
    if (!s_.empty()) s_.clear();
    return *this;
  }
  Variant tmp(o);
  *this = std::move(tmp);
  return *this;
}

ArrayData& Variant::arrayForWrite() {
  // While an element is lent out, the other owners are the lenders themselves: no copy.
  if (a_.use_count() > 1 && a_->locks == 0) {
    a_ = std::make_shared<ArrayData>(*a_);
    a_->locks = 0;
  }
  return *a_;
}

ArrayData::~ArrayData() {
  // An array of arrays of arrays... would otherwise be freed by recursion as deep as the
  // nesting: the nested values are moved out and freed here, one level at a time.
  thread_local bool draining = false;
  thread_local std::vector<Variant> graveyard;
  for (auto& v : items)
    if (v.isArray() || v.isObject()) graveyard.push_back(std::move(v));
  if (draining) return;
  draining = true;
  while (!graveyard.empty()) {
    Variant last = std::move(graveyard.back());
    graveyard.pop_back();
  }
  draining = false;
}

std::size_t ArrayData::elementCount(const std::vector<std::int32_t>& upperBounds) {
  std::size_t n = 1;
  for (auto u : upperBounds) {
    const auto extent = static_cast<std::size_t>(static_cast<std::int64_t>(u) + 1);
    if (extent != 0 && n > kMaxElements / extent) raise(rt::kOutOfMemory);
    n *= extent;
  }
  if (n > kMaxElements) raise(rt::kOutOfMemory);
  return n;
}

std::shared_ptr<ArrayData> ArrayData::make(std::vector<std::int32_t> upperBounds, bool fixed) {
  auto a = std::make_shared<ArrayData>();
  const std::size_t n = elementCount(upperBounds);
  a->upper = std::move(upperBounds);
  a->items.resize(n);
  a->fixed = fixed;
  return a;
}

std::shared_ptr<ArrayData> ArrayData::ofValues(std::vector<Variant> values) {
  auto a = std::make_shared<ArrayData>();
  a->upper = {static_cast<std::int32_t>(values.size()) - 1};
  a->items = std::move(values);
  return a;
}

}  // namespace lathwick::vbs
