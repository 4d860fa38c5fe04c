#pragma once
// The fuzz targets. Each takes one input as libFuzzer hands it over and returns 0; a broken
// promise is a FUZZ_CHECK failure, a crash or an exception that escapes. libFuzzer builds one
// executable per target (fuzz_entry.cpp); the test suite replays every target's seed corpus and
// its regressions through the same functions (replay_test.cpp).
#include <cstddef>
#include <cstdint>

namespace lathwick::fuzz {

using Target = int (*)(const std::uint8_t* data, std::size_t size);

// RTF bytes: read, styled, written and read again; the text must come back the same.
int rtfReader(const std::uint8_t* data, std::size_t size);
// Macro text: compiled, every procedure run, each stopped through the poll after a short time.
int macroEngine(const std::uint8_t* data, std::size_t size);
// Line 1: scheme number (1-4 of the bundled schemes); then the program, colorized in both views.
int colorizer(const std::uint8_t* data, std::size_t size);
// Line 1: a pass name and its settings (see targets/passes.cpp); then the program.
int passes(const std::uint8_t* data, std::size_t size);
// A scheme data file: every record read, written back, read again, and used for a colour run.
int schemeDataFile(const std::uint8_t* data, std::size_t size);
// A send-to list file ("SendTo.dat"): read, written back and read again; commands built.
int sendToFile(const std::uint8_t* data, std::size_t size);
// An easy-text category file ("*.dis"): read, written back and read again; a text stored.
int easyTextFile(const std::uint8_t* data, std::size_t size);
// Line 1: comment pair, block skip, units, piece size; then the program, modelled whole and
// in pieces.
int motionModel(const std::uint8_t* data, std::size_t size);
// A new target goes here, with a line in kTargets of replay_test.cpp and in
// LATHWICK_FUZZ_TARGETS of tests.cmake.

}  // namespace lathwick::fuzz
