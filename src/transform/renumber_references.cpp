#include "transform/renumber_references.h"

#include <algorithm>
#include <new>
#include <unordered_map>
#include <vector>

#include "platform/bytes.h"
#include "platform/errors.h"
#include "platform/line_reader.h"
#include "transform/block_references.h"

namespace lathwick::transform {

namespace {

constexpr size_t kMostProblemsShown = 10;

struct Block {
  std::optional<std::int64_t> oldNumber, newNumber;
  long line;
};

struct Found {
  long line;
  BlockReference ref;
  std::string value;  // the value's text as written
};

// What the first pass learns: every numbered block before and after, every reference, and the
// program numbers the file itself holds.
struct Survey {
  std::vector<Block> blocks;
  std::vector<Found> references;
  std::vector<std::int64_t> programs;
};

Survey survey(const std::string& inPath, const RenumberRequest& request) {
  const std::string sequence = trimBlanks(request.sequenceText), comment = trimBlanks(request.commentStart);
  Survey s;
  LineReader reader(inPath);
  RenumberLine renumber(request);
  std::string line, renumbered;
  long number = 0;
  while (reader.next(line)) {
    ++number;
    BlockWords words = scanBlock(line, comment);
    s.programs.insert(s.programs.end(), words.programNumbers.begin(), words.programNumbers.end());
    for (BlockReference& r : words.references) {
      std::string value = line.substr(r.valueStart, r.valueLength);
      s.references.push_back(Found{number, std::move(r), std::move(value)});
    }
    renumbered = line;
    renumber.apply(number, renumbered);
    const auto before = blockNumber(line, sequence, comment), after = blockNumber(renumbered, sequence, comment);
    if (before || after) s.blocks.push_back(Block{before, after, number});
  }
  std::sort(s.programs.begin(), s.programs.end());
  return s;
}

// Follows each reference to its block and decides its new number, or why it cannot be kept.
class Resolver {
 public:
  Resolver(const Survey& survey, std::string sequence) : survey_(survey), sequence_(std::move(sequence)) {
    for (const Block& b : survey.blocks) {
      if (b.oldNumber) byOld_.emplace_back(*b.oldNumber, &b);
      if (b.newNumber) byNew_.emplace_back(*b.newNumber, &b);
    }
    std::sort(byOld_.begin(), byOld_.end());
    std::sort(byNew_.begin(), byNew_.end());
  }

  void resolve(const Found& f) {
    const BlockReference& r = f.ref;
    if (r.computed) return problem(f, "names its block by a computed value.");
    const std::string name = sequence_ + f.value;
    if (r.kind == ReferenceKind::ProgramCall) return programCall(f);
    const auto [first, last] = blocksNumbered(byOld_, r.target);
    if (first == last) return problem(f, "names " + name + ", which no block has.");
    if (last - first > 1)
      return problem(f, "names " + name + ", which the blocks on lines " + line(first->second) + " and " +
                            line((first + 1)->second) + " both have.");
    const Block& b = *first->second;
    if (!b.newNumber)
      return problem(f, "names " + name + " on line " + line(&b) + ", which holds nothing else and loses its number.");
    if (*b.newNumber == *b.oldNumber) return;
    const auto [nFirst, nLast] = blocksNumbered(byNew_, b.newNumber);
    if (nLast - nFirst > 1) {
      const Block* other = nFirst->second == &b ? (nFirst + 1)->second : nFirst->second;
      return problem(f, "names " + name + " on line " + line(&b) + ", which would become " + sequence_ +
                            std::to_string(*b.newNumber) + " like the block on line " + line(other) + ".");
    }
    newNumbers_[*b.oldNumber] = *b.newNumber;
  }

  const std::vector<std::string>& problems() const { return problems_; }
  size_t problemCount() const { return problemCount_; }
  const std::unordered_map<std::int64_t, std::int64_t>& newNumbers() const { return newNumbers_; }

 private:
  using Index = std::vector<std::pair<std::int64_t, const Block*>>;

  static std::pair<Index::const_iterator, Index::const_iterator> blocksNumbered(const Index& index,
                                                                                std::optional<std::int64_t> n) {
    if (!n) return {index.end(), index.end()};
    const auto lower = std::lower_bound(index.begin(), index.end(), std::make_pair(*n, (const Block*)nullptr));
    auto upper = lower;
    while (upper != index.end() && upper->first == *n) ++upper;
    return {lower, upper};
  }
  static std::string line(const Block* b) { return std::to_string(b->line); }

  // M98 P names a program. Only when this file holds no such program but does hold a block of
  // that number, and renumbering changes it, is there no telling which one the call means.
  void programCall(const Found& f) {
    const auto n = f.ref.target;
    if (!n || std::binary_search(survey_.programs.begin(), survey_.programs.end(), *n)) return;
    const auto [first, last] = blocksNumbered(byOld_, n);
    for (auto it = first; it != last; ++it)
      if (it->second->newNumber != it->second->oldNumber)
        return problem(f, "may name program O" + f.value + " or the block " + sequence_ + f.value + " on line " +
                              line(it->second) + ".");
  }

  void problem(const Found& f, const std::string& what) {
    ++problemCount_;
    if (problems_.size() < kMostProblemsShown)
      problems_.push_back("Line " + std::to_string(f.line) + ": " + f.ref.text + " " + what);
  }

  const Survey& survey_;
  std::string sequence_;
  Index byOld_, byNew_;
  std::unordered_map<std::int64_t, std::int64_t> newNumbers_;
  std::vector<std::string> problems_;
  size_t problemCount_ = 0;
};

// The second pass: the same numbering, then each reference of the lines that hold one.
class RenumberKeepingReferences : public PlainLineTransform {
 public:
  RenumberKeepingReferences(const RenumberRequest& request, const Resolver& resolver, std::vector<long> lines)
      : renumber_(request), comment_(trimBlanks(request.commentStart)), newNumbers_(resolver.newNumbers()),
        lines_(std::move(lines)) {}

  bool apply(long number, std::string& line) override {
    bool changed = renumber_.apply(number, line);
    while (next_ < lines_.size() && lines_[next_] < number) ++next_;
    if (next_ == lines_.size() || lines_[next_] != number) return changed;
    const BlockWords words = scanBlock(line, comment_);
    for (auto r = words.references.rbegin(); r != words.references.rend(); ++r) {
      if (r->kind == ReferenceKind::ProgramCall || r->computed || !r->target) continue;
      const auto found = newNumbers_.find(*r->target);
      if (found == newNumbers_.end()) continue;
      line.replace(r->valueStart, r->valueLength, std::to_string(found->second));
      changed = true;
    }
    return changed;
  }

 private:
  RenumberLine renumber_;
  std::string comment_;
  const std::unordered_map<std::int64_t, std::int64_t>& newNumbers_;
  std::vector<long> lines_;
  size_t next_ = 0;
};

PassResult refused(const Resolver& resolver) {
  PassResult r;
  r.outcome = PassOutcome::Refused;
  r.title = kReferencesTitle;
  r.message = "These references cannot be kept:\n";
  for (const std::string& p : resolver.problems()) r.message += p + "\n";
  if (resolver.problemCount() > resolver.problems().size())
    r.message += "... and " + std::to_string(resolver.problemCount() - resolver.problems().size()) + " more.\n";
  r.message += kReferencesRefused;
  return r;
}

PassResult failed(int number, const std::string& description) {
  PassResult r;
  r.outcome = PassOutcome::Failed;
  r.errorNumber = number;
  r.errorDescription = description;
  r.message = kRenumberFailed;
  return r;
}

}  // namespace

PassResult runRenumberKeepingReferences(const std::string& inPath, const std::string& outPath,
                                        const RenumberRequest& request, PassMonitor& monitor) {
  Survey found;
  monitor.statusText(kRenumberingStatus);
  try {
    found = survey(inPath, request);
  } catch (const AppError& e) {
    monitor.statusText(kReadyStatus);
    return failed(e.number(), e.description());
  } catch (const std::bad_alloc&) {
    monitor.statusText(kReadyStatus);
    return failed(7, "Out of memory");
  }
  Resolver resolver(found, trimBlanks(request.sequenceText));
  std::vector<long> lines;
  for (const Found& f : found.references) {
    resolver.resolve(f);
    if (lines.empty() || lines.back() != f.line) lines.push_back(f.line);
  }
  if (resolver.problemCount() > 0) {
    monitor.statusText(kReadyStatus);
    return refused(resolver);
  }
  RenumberKeepingReferences transform(request, resolver, std::move(lines));
  PlainPassSettings settings;
  settings.statusText = kRenumberingStatus;
  settings.failureMessage = kRenumberFailed;
  return runPlainPass(inPath, outPath, transform, settings, monitor);
}

}  // namespace lathwick::transform
