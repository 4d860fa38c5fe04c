#pragma once
// The words of a block that name another block by its sequence number: where a lathe cycle's
// profile starts and ends, local subprogram calls and returns, and the jumps of macro programs.
// Renumber with "Update references" rewrites them; everything else in a line is left alone.
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace lathwick::transform {

enum class ReferenceKind {
  CycleStart,      // P of G70/G71/G72/G73: the profile's first block
  CycleEnd,        // Q of the same: its last block
  LocalCall,       // P of M97: a block of this program
  Return,          // P of M99: the block to go on at
  ProgramCall,     // P of M98: a program number, unless the file says otherwise
  SequenceCall,    // H of M98 without P: a block of this program
  Jump,            // GOTO n, also after IF [...]
};

struct BlockReference {
  ReferenceKind kind;
  size_t valueStart = 0;  // index of the value's text in the line
  size_t valueLength = 0;
  std::optional<std::int64_t> target;  // the block number, when the value is a whole number
  bool computed = false;               // a parameter or an expression (#1, [#2+1])
  std::string text;                    // the reference as written, for messages ("Q40 of G71", "GOTO 20")
};

struct BlockWords {
  std::vector<BlockReference> references;
  std::vector<std::int64_t> programNumbers;  // O1000, O100 SUB, :1000 (one a block)
};

// Reads the code of one line: "(...)" comments, and everything from ";" or from a comment-start
// text other than "(" to the line's end, are not code. Letters match without regard to case.
BlockWords scanBlock(std::string_view line, std::string_view commentStart);

// The sequence number a line carries: the number after the first `sequence` text, unless that
// lies after the comment start (as renumber decides); only plain digits make a number.
std::optional<std::int64_t> blockNumber(std::string_view line, std::string_view sequence,
                                        std::string_view commentStart);

}  // namespace lathwick::transform
