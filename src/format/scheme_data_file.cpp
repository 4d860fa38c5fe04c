#include "format/scheme_data_file.h"

#include <cstdio>
#include <memory>

#include "format/rich_text_builder.h"
#include "platform/atomic_file.h"
#include "platform/bytes.h"
#include "platform/file_system.h"
#include "platform/app_names.h"
#include "platform/install_layout.h"

namespace lathwick {

namespace {

struct FileCloser {
  void operator()(std::FILE* f) const { std::fclose(f); }
};
using File = std::unique_ptr<std::FILE, FileCloser>;

File openForReading(const std::string& path) {
  File f(std::fopen(nativePath(path).c_str(), "rb"));
  if (!f) throw DataFileProblem(err::kFileNotFound);
  return f;
}

long countOf(long long bytes) { return static_cast<long>(bytes / static_cast<long long>(kSchemeRecordSize)); }

long countOpen(std::FILE* f) {
  if (std::fseek(f, 0, SEEK_END) != 0) throw DataFileProblem();
  const long long size = std::ftell(f);
  if (size < 0) throw DataFileProblem();
  return countOf(size);
}

SchemeRecord readOpen(std::FILE* f, long n) {
  if (n < 1 || n > countOpen(f)) throw DataFileProblem(62);
  std::string bytes(kSchemeRecordSize, '\0');
  if (std::fseek(f, static_cast<long>((n - 1) * static_cast<long long>(kSchemeRecordSize)), SEEK_SET) != 0 ||
      std::fread(bytes.data(), 1, bytes.size(), f) != bytes.size())
    throw DataFileProblem(62);
  return decodeSchemeRecord(bytes);
}

}  // namespace

long schemeRecordCount(const std::string& dataFile) { return countOpen(openForReading(dataFile).get()); }

SchemeList loadSchemeList(const std::string& dataFile, long rememberedRecord) {
  SchemeList list;
  try {
    const File f = openForReading(dataFile);
    const long count = countOpen(f.get());
    for (long n = 1; n <= count; ++n) list.entries.push_back({trimBlanks(readOpen(f.get(), n).name), n});
  } catch (const AppError&) {
    list.dataFileProblem = true;
  }
  if (!list.entries.empty())
    list.selected = (rememberedRecord >= 1 && rememberedRecord <= static_cast<long>(list.entries.size()))
                        ? static_cast<int>(rememberedRecord - 1)
                        : 0;
  return list;
}

SchemeRecord readSchemeRecord(const std::string& dataFile, long n) {
  const File f = openForReading(dataFile);
  return readOpen(f.get(), n);
}

SchemeRecord loadScheme(const std::string& dataFile, long n) {
  SchemeRecord r = readSchemeRecord(dataFile, n);
  buildSchemeFragments(r);
  return r;
}

std::string bundledDataFilePath() {
  const std::string beside = executableFolder() + "/" + kDataFileName;
  if (isRegularFile(beside)) return beside;
  const std::string installed = installedDataFolder(executableFolder()) + kDataFileName;
  return isRegularFile(installed) ? installed : beside;
}

void writeSchemeRecord(const std::string& dataFile, long n, const SchemeRecord& record) {
  if (isReadOnlyFile(dataFile)) throw DataFileProblem(err::kPermissionDenied);
  std::string bytes;
  if (isRegularFile(dataFile)) {
    auto existing = readWholeFile(dataFile);
    if (!existing) throw DataFileProblem(err::kPermissionDenied);
    bytes = std::move(*existing);
  }
  const long count = countOf(static_cast<long long>(bytes.size()));
  if (n < 1 || n > count + 1) throw DataFileProblem(err::kBadFileName);
  const std::size_t at = static_cast<std::size_t>(n - 1) * kSchemeRecordSize;
  if (bytes.size() < at + kSchemeRecordSize) bytes.resize(at + kSchemeRecordSize);
  bytes.replace(at, kSchemeRecordSize, encodeSchemeRecord(record));
  try {
    writeFileAtomically(dataFile, bytes);
  } catch (const AppError& e) {
    throw DataFileProblem(e.number());
  }
}

std::string commentStartText(const std::string& dataFile, long n) {
  try {
    return trimBlanks(loadScheme(dataFile, n).style(0, kCommentStyle).marker);
  } catch (const AppError&) {
    return "(";
  }
}

void removeSchemeRecord(const std::string& dataFile, const std::string& tempFile, long n) {
  if (isReadOnlyFile(dataFile)) throw DataFileProblem(err::kPermissionDenied);
  const auto bytes = readWholeFile(dataFile);
  if (!bytes) throw DataFileProblem(err::kFileNotFound);
  const long count = countOf(static_cast<long long>(bytes->size()));
  std::string kept;
  kept.reserve(bytes->size());
  for (long k = 1; k <= count; ++k)
    if (k != n) kept.append(*bytes, static_cast<std::size_t>(k - 1) * kSchemeRecordSize, kSchemeRecordSize);
  try {
    writeFileAtomically(tempFile, kept);
  } catch (const AppError& e) {
    throw DataFileProblem(e.number());
  }
  // The rename replaces the data file in one step, so it is never missing or half written.
  if (std::rename(nativePath(tempFile).c_str(), nativePath(dataFile).c_str()) != 0) {
    removeFile(tempFile);
    throw DataFileProblem(err::kPermissionDenied);
  }
}

}  // namespace lathwick
