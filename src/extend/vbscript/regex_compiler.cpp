// The pattern compiler of the RegExp object: parses the pattern into a tree, then writes the
// program of Regex::Inst that the matcher runs.
#include <cctype>
#include <climits>
#include <memory>

#include "extend/vbscript/errors.h"
#include "extend/vbscript/regex_engine.h"

namespace lathwick::vbs {

namespace {
constexpr int kSyntax = 5017, kQuantifier = 5018, kBracket = 5019, kParen = 5020, kRange = 5021;
constexpr int kInfinite = INT_MAX;
constexpr size_t kMaxProgram = 200000;
constexpr int kMaxNesting = 500;

struct Node {
  enum Kind { Empty, Char, Any, Class, Group, Alt, Concat, Repeat, Bol, Eol, WordB, NotWordB, Backref, Look } kind;
  unsigned char c = 0;
  int index = -1;  // class index, capture number (Group, Backref), or -1 for a plain group
  int min = 0, max = 0;
  bool lazy = false, negative = false;
  std::vector<std::unique_ptr<Node>> kids;
};
using NodePtr = std::unique_ptr<Node>;
NodePtr node(Node::Kind k) {
  auto n = std::make_unique<Node>();
  n->kind = k;
  return n;
}
}  // namespace

class RegexCompiler {
 public:
  RegexCompiler(Regex& re, std::string_view p) : re_(re), p_(p) {}

  void compile() {
    NodePtr root = alternation();
    if (i_ < p_.size()) raise(kSyntax);  // a ")" without its "("
    re_.required_ = required(*root);
    emit(Regex::Op::Save, 0);
    generate(*root);
    emit(Regex::Op::Save, 1);
    emit(Regex::Op::Match);
  }

 private:
  // ---- parsing -------------------------------------------------------------------------------
  bool more() const { return i_ < p_.size(); }
  char peek() const { return p_[i_]; }

  NodePtr alternation() {
    if (++depth_ > kMaxNesting) raise(kSyntax);
    NodePtr first = sequence();
    if (!more() || peek() != '|') {
      --depth_;
      return first;
    }
    NodePtr alt = node(Node::Alt);
    alt->kids.push_back(std::move(first));
    while (more() && peek() == '|') {
      ++i_;
      alt->kids.push_back(sequence());
    }
    --depth_;
    return alt;
  }

  NodePtr sequence() {
    NodePtr seq = node(Node::Concat);
    while (more() && peek() != '|' && peek() != ')') {
      NodePtr a = atom();
      a = quantified(std::move(a));
      seq->kids.push_back(std::move(a));
    }
    return seq;
  }

  bool readInt(int& v) {
    const size_t start = i_;
    long long n = 0;
    while (more() && std::isdigit(static_cast<unsigned char>(peek()))) {
      n = n * 10 + (peek() - '0');
      if (n > 100000) n = 100000;
      ++i_;
    }
    v = static_cast<int>(n);
    return i_ > start;
  }

  NodePtr quantified(NodePtr a) {
    while (more()) {
      int mn, mx;
      const size_t save = i_;
      const char q = peek();
      if (q == '*') mn = 0, mx = kInfinite, ++i_;
      else if (q == '+') mn = 1, mx = kInfinite, ++i_;
      else if (q == '?') mn = 0, mx = 1, ++i_;
      else if (q == '{') {
        ++i_;
        if (!readInt(mn)) {
          i_ = save;  // a literal "{"
          return a;
        }
        mx = mn;
        if (more() && peek() == ',') {
          ++i_;
          if (!readInt(mx)) mx = kInfinite;
        }
        if (!more() || peek() != '}') {
          i_ = save;
          return a;
        }
        ++i_;
        if (mx < mn) raise(kSyntax);
      } else {
        return a;
      }
      if (a->kind == Node::Bol || a->kind == Node::Eol || a->kind == Node::WordB || a->kind == Node::NotWordB ||
          a->kind == Node::Look || a->kind == Node::Repeat)
        raise(kQuantifier);
      NodePtr r = node(Node::Repeat);
      r->min = mn;
      r->max = mx;
      if (more() && peek() == '?') r->lazy = true, ++i_;
      r->kids.push_back(std::move(a));
      a = std::move(r);
    }
    return a;
  }

  NodePtr charNode(unsigned char c) {
    NodePtr n = node(Node::Char);
    n->c = c;
    return n;
  }

  // Both cases of every letter in the set (before a negation is applied).
  std::bitset<256> folded(const std::bitset<256>& bits) const {
    std::bitset<256> b = bits;
    if (re_.opt_.ignoreCase)
      for (int c = 0; c < 256; ++c)
        if (bits[static_cast<size_t>(c)]) b.set(lowerByte(static_cast<unsigned char>(c))), b.set(static_cast<size_t>(std::toupper(c)));
    return b;
  }

  NodePtr classNode(const std::bitset<256>& bits) {
    NodePtr n = node(Node::Class);
    re_.classes_.push_back(bits);
    n->index = static_cast<int>(re_.classes_.size()) - 1;
    return n;
  }

  static std::bitset<256> shorthand(char e) {
    std::bitset<256> b;
    for (int c = 0; c < 256; ++c) {
      const auto u = static_cast<unsigned char>(c);
      bool in = false;
      switch (e | 0x20) {
        case 'd': in = std::isdigit(u); break;
        case 'w': in = isWordByte(u); break;
        case 's': in = u == ' ' || (u >= 9 && u <= 13) || u == 0xA0; break;
      }
      b[static_cast<size_t>(c)] = (e >= 'a') ? in : !in;
    }
    return b;
  }

  int hexDigits(int n) {
    int v = 0;
    for (int k = 0; k < n; ++k) {
      if (!more() || !std::isxdigit(static_cast<unsigned char>(peek()))) return -1;
      const char h = p_[i_++];
      v = v * 16 + (std::isdigit(static_cast<unsigned char>(h)) ? h - '0' : (h | 0x20) - 'a' + 10);
    }
    return v;
  }

  // An escaped character (after the backslash) as a byte, for \n \t \xHH and the like.
  int escapedChar(char e) {
    switch (e) {
      case 'n': return '\n';
      case 'r': return '\r';
      case 't': return '\t';
      case 'f': return '\f';
      case 'v': return '\v';
      case '0': return 0;
      case 'x': {
        const size_t save = i_;
        const int v = hexDigits(2);
        if (v < 0) i_ = save;
        return v < 0 ? 'x' : v;
      }
      case 'u': {
        const size_t save = i_;
        const int v = hexDigits(4);
        if (v < 0) i_ = save;
        return v < 0 ? 'u' : (v & 0xFF);
      }
      case 'c':
        if (more() && std::isalpha(static_cast<unsigned char>(peek()))) return p_[i_++] % 32;
        return 'c';
      default: return static_cast<unsigned char>(e);
    }
  }

  NodePtr atom() {
    const char c = p_[i_++];
    switch (c) {
      case '.': return node(Node::Any);
      case '^': return node(Node::Bol);
      case '$': return node(Node::Eol);
      case '*':
      case '+':
      case '?': raise(kQuantifier);
      case '(': {
        NodePtr g;
        if (more() && peek() == '?') {
          ++i_;
          if (!more()) raise(kSyntax);
          const char k = p_[i_++];
          if (k == ':') g = node(Node::Group);
          else if (k == '=' || k == '!') {
            g = node(Node::Look);
            g->negative = k == '!';
          } else {
            raise(kSyntax);
          }
        } else {
          g = node(Node::Group);
          g->index = ++re_.groups_;
        }
        g->kids.push_back(alternation());
        if (!more() || peek() != ')') raise(kParen);
        ++i_;
        return g;
      }
      case ')': raise(kSyntax);
      case '[': return bracket();
      case '\\': {
        if (!more()) raise(kSyntax);
        const char e = p_[i_++];
        switch (e) {
          case 'd': case 'D': case 'w': case 'W': case 's': case 'S': return classNode(shorthand(e));
          case 'b': return node(Node::WordB);
          case 'B': return node(Node::NotWordB);
          default: break;
        }
        if (e >= '1' && e <= '9') {
          NodePtr b = node(Node::Backref);
          b->index = e - '0';
          return b;
        }
        return charNode(static_cast<unsigned char>(escapedChar(e)));
      }
      default: return charNode(static_cast<unsigned char>(c));
    }
  }

  NodePtr bracket() {
    std::bitset<256> b;
    bool negate = false;
    if (more() && peek() == '^') negate = true, ++i_;
    bool first = true;
    while (true) {
      if (!more()) raise(kBracket);
      if (peek() == ']' && !first) break;
      first = false;
      int lo;
      char c = p_[i_++];
      if (c == '\\') {
        if (!more()) raise(kBracket);
        const char e = p_[i_++];
        if (std::string_view("dDwWsS").find(e) != std::string_view::npos) {
          b |= shorthand(e);
          continue;
        }
        lo = e == 'b' ? '\b' : escapedChar(e);
      } else {
        lo = static_cast<unsigned char>(c);
      }
      int hi = lo;
      if (more() && peek() == '-' && i_ + 1 < p_.size() && p_[i_ + 1] != ']') {
        ++i_;
        char h = p_[i_++];
        if (h == '\\') {
          if (!more()) raise(kBracket);
          hi = escapedChar(p_[i_++]);
        } else {
          hi = static_cast<unsigned char>(h);
        }
        if (hi < lo) raise(kRange);
      }
      for (int k = lo; k <= hi; ++k) b.set(static_cast<size_t>(k));
    }
    ++i_;  // ]
    b = folded(b);
    if (negate) b.flip();
    return classNode(b);
  }

  std::bitset<256> required(const Node& n) const {
    std::bitset<256> r;
    switch (n.kind) {
      case Node::Char:
        r.set(n.c);
        if (re_.opt_.ignoreCase) r.reset();  // either case will do: no single byte is required
        break;
      case Node::Concat:
        for (const auto& k : n.kids) r |= required(*k);
        break;
      case Node::Group: r = required(*n.kids[0]); break;
      case Node::Repeat:
        if (n.min > 0) r = required(*n.kids[0]);
        break;
      case Node::Alt:
        r.set();
        for (const auto& k : n.kids) r &= required(*k);
        break;
      default: break;
    }
    return r;
  }

  // ---- code generation -------------------------------------------------------------------------
  int emit(Regex::Op op, int x = 0, int y = 0, unsigned char c = 0) {
    if (re_.prog_.size() >= kMaxProgram) raise(kSyntax);
    re_.prog_.push_back(Regex::Inst{op, c, x, y});
    return static_cast<int>(re_.prog_.size()) - 1;
  }
  int here() const { return static_cast<int>(re_.prog_.size()); }

  void generate(const Node& n) {
    using Op = Regex::Op;
    switch (n.kind) {
      case Node::Empty: break;
      case Node::Char: emit(Op::Char, 0, 0, re_.opt_.ignoreCase ? lowerByte(n.c) : n.c); break;
      case Node::Any: emit(Op::Any); break;
      case Node::Class: emit(Op::Class, n.index); break;
      case Node::Bol: emit(Op::Bol); break;
      case Node::Eol: emit(Op::Eol); break;
      case Node::WordB: emit(Op::WordB); break;
      case Node::NotWordB: emit(Op::NotWordB); break;
      case Node::Backref: emit(Op::Backref, n.index); break;
      case Node::Concat:
        for (const auto& k : n.kids) generate(*k);
        break;
      case Node::Group:
        if (n.index > 0) emit(Op::Save, 2 * n.index);
        generate(*n.kids[0]);
        if (n.index > 0) emit(Op::Save, 2 * n.index + 1);
        break;
      case Node::Look: generateLook(n); break;
      case Node::Alt: generateAlternatives(n); break;
      case Node::Repeat: generateRepeat(n); break;
    }
  }

  void generateLook(const Node& n) {
    const int at = emit(Regex::Op::Look, 0, n.negative ? 1 : 0);
    generate(*n.kids[0]);
    emit(Regex::Op::Match);
    re_.prog_[static_cast<size_t>(at)].x = here();  // where matching goes on
  }

  void generateAlternatives(const Node& n) {
    std::vector<int> jumps;
    for (size_t k = 0; k < n.kids.size(); ++k) {
      if (k + 1 < n.kids.size()) {
        const int split = emit(Regex::Op::Split);
        re_.prog_[static_cast<size_t>(split)].x = here();
        generate(*n.kids[k]);
        jumps.push_back(emit(Regex::Op::Jmp));
        re_.prog_[static_cast<size_t>(split)].y = here();
      } else {
        generate(*n.kids[k]);
      }
    }
    for (int j : jumps) re_.prog_[static_cast<size_t>(j)].x = here();
  }

  void generateRepeat(const Node& n) {
    using Op = Regex::Op;
    const Node& body = *n.kids[0];
    for (int k = 0; k < n.min; ++k) generate(body);
    if (n.max == kInfinite) {
      const int mark = re_.marks_++;
      const int split = emit(Op::Split);
      const int bodyStart = here();
      emit(Op::Mark, mark);
      generate(body);
      emit(Op::Progress, mark);  // an empty turn of the loop ends it
      emit(Op::Jmp, split);
      setSplit(split, bodyStart, here(), n.lazy);
      return;
    }
    std::vector<int> splits;
    for (int k = n.min; k < n.max; ++k) {
      splits.push_back(emit(Op::Split));
      const int bodyStart = here();
      generate(body);
      re_.prog_[static_cast<size_t>(splits.back())].x = bodyStart;
    }
    for (int s : splits) setSplit(s, re_.prog_[static_cast<size_t>(s)].x, here(), n.lazy);
  }

  void setSplit(int at, int body, int exit, bool lazy) {
    Regex::Inst& s = re_.prog_[static_cast<size_t>(at)];
    s.x = lazy ? exit : body;
    s.y = lazy ? body : exit;
  }

  Regex& re_;
  std::string_view p_;
  size_t i_ = 0;
  int depth_ = 0;
};

Regex::Regex(std::string_view pattern, Options options) : opt_(options) { RegexCompiler(*this, pattern).compile(); }

}  // namespace lathwick::vbs
