// The matcher of the RegExp object: runs a compiled program over a subject by backtracking,
// with its branches and saved registers on the heap.
#include "extend/vbscript/regex_engine.h"

namespace lathwick::vbs {

// One run of the program from one instruction and position: `caps` receives the groups.
class RegexMatcher {
 public:
  RegexMatcher(const Regex& re, const std::string& s, std::vector<int>& caps, size_t& steps,
               const std::function<void()>& poll)
      : re_(re), s_(s), caps_(caps), steps_(steps), poll_(poll), marks_(static_cast<size_t>(re.marks_), -1) {}

  bool run(int pc, size_t pos) {
    pc_ = pc;
    pos_ = pos;
    while (true) {
      if ((++steps_ & 0xFFFF) == 0 && poll_) poll_();
      const Regex::Inst& in = re_.prog_[static_cast<size_t>(pc_)];
      if (in.op == Regex::Op::Match) return true;
      if (!step(in) && !backtrack()) return false;
    }
  }

 private:
  struct Entry {
    int pc;    // branch target, or -1 for a register restore
    int pos;   // branch position, or the register's old value
    int slot;  // capture slot (>= 0) or mark (-2 - mark)
  };

  unsigned char byte(size_t at) const { return static_cast<unsigned char>(s_[at]); }
  bool more() const { return pos_ < s_.size(); }
  // A test that takes the byte under the position along when it holds.
  bool consume(bool ok) {
    if (ok) ++pos_, ++pc_;
    return ok;
  }
  // A test of the position that takes nothing along.
  bool holds(bool ok) {
    if (ok) ++pc_;
    return ok;
  }
  bool multiline() const { return re_.opt_.multiline; }

  // Runs one instruction (never Match); false when matching fails here.
  bool step(const Regex::Inst& in) {
    using Op = Regex::Op;
    const auto x = static_cast<size_t>(in.x);
    switch (in.op) {
      case Op::Char: return consume(more() && (re_.opt_.ignoreCase ? lowerByte(byte(pos_)) : byte(pos_)) == in.c);
      case Op::Any: return consume(more() && !isLineBreakByte(byte(pos_)));
      case Op::Class: return consume(more() && re_.classes_[x][byte(pos_)]);
      case Op::Split:
        stack_.push_back({in.y, static_cast<int>(pos_), 0});
        pc_ = in.x;
        return true;
      case Op::Jmp: pc_ = in.x; return true;
      case Op::Save:
        stack_.push_back({-1, caps_[x], in.x});
        caps_[x] = static_cast<int>(pos_);
        ++pc_;
        return true;
      case Op::Mark:
        stack_.push_back({-1, marks_[x], -2 - in.x});
        marks_[x] = static_cast<int>(pos_);
        ++pc_;
        return true;
      case Op::Progress: return holds(marks_[x] != static_cast<int>(pos_));
      case Op::Bol: return holds(pos_ == 0 || (multiline() && isLineBreakByte(byte(pos_ - 1))));
      case Op::Eol: return holds(pos_ == s_.size() || (multiline() && isLineBreakByte(byte(pos_))));
      case Op::WordB: return holds(atWordBoundary());
      case Op::NotWordB: return holds(!atWordBoundary());
      case Op::Backref: return holds(backReference(x));
      case Op::Look: return lookAhead(in);
      case Op::Match: return true;
    }
    return false;
  }

  bool atWordBoundary() const {
    const bool before = pos_ > 0 && isWordByte(byte(pos_ - 1));
    const bool after = more() && isWordByte(byte(pos_));
    return before != after;
  }

  // The text group g took, again at the position (and taken along); a group that took no part
  // matches the empty text.
  bool backReference(size_t g) {
    if (2 * g + 1 >= caps_.size() || caps_[2 * g] < 0 || caps_[2 * g + 1] < 0) return true;
    const size_t b = static_cast<size_t>(caps_[2 * g]), len = static_cast<size_t>(caps_[2 * g + 1]) - b;
    if (pos_ + len > s_.size()) return false;
    for (size_t k = 0; k < len; ++k) {
      const unsigned char x = byte(b + k), y = byte(pos_ + k);
      if (re_.opt_.ignoreCase ? lowerByte(x) != lowerByte(y) : x != y) return false;
    }
    pos_ += len;
    return true;
  }

  // (?=...) and (?!...): the inner program runs on its own from here; a positive look-ahead
  // that matched keeps its groups.
  bool lookAhead(const Regex::Inst& in) {
    std::vector<int> inner = caps_;
    const bool found = RegexMatcher(re_, s_, inner, steps_, poll_).run(pc_ + 1, pos_);
    const bool ok = found != (in.y == 1);
    if (ok) {
      if (found) caps_ = inner;
      pc_ = in.x;
    }
    return ok;
  }

  // Back to the last branch not yet tried, undoing the registers set since; false when none is
  // left.
  bool backtrack() {
    while (!stack_.empty()) {
      const Entry e = stack_.back();
      stack_.pop_back();
      if (e.pc >= 0) {
        pc_ = e.pc;
        pos_ = static_cast<size_t>(e.pos);
        return true;
      }
      if (e.slot >= 0) caps_[static_cast<size_t>(e.slot)] = e.pos;
      else marks_[static_cast<size_t>(-2 - e.slot)] = e.pos;
    }
    return false;
  }

  const Regex& re_;
  const std::string& s_;
  std::vector<int>& caps_;
  size_t& steps_;
  const std::function<void()>& poll_;
  std::vector<int> marks_;
  std::vector<Entry> stack_;
  int pc_ = 0;
  size_t pos_ = 0;
};

bool Regex::run(int pc, const std::string& s, size_t pos, std::vector<int>& caps, size_t& steps,
                const std::function<void()>& poll) const {
  return RegexMatcher(*this, s, caps, steps, poll).run(pc, pos);
}

bool Regex::search(const std::string& subject, size_t from, std::vector<int>& groups,
                   const std::function<void()>& poll) const {
  size_t steps = 0;
  // The last start worth trying: every required byte must still lie ahead.
  size_t lastStart = subject.size();
  if (required_.any()) {
    std::bitset<256> seen;
    size_t p = subject.size();
    while (p > from && (seen & required_) != required_) seen.set(static_cast<unsigned char>(subject[--p]));
    if ((seen & required_) != required_) return false;
    lastStart = p;
  }
  for (size_t start = from; start <= lastStart; ++start) {
    groups.assign(static_cast<size_t>(2 * (groups_ + 1)), -1);
    if (run(0, subject, start, groups, steps, poll)) return true;
  }
  return false;
}

}  // namespace lathwick::vbs
