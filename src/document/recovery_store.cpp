#include "document/recovery_store.h"

#include <algorithm>
#include <cstdlib>
#include <filesystem>
#include <system_error>

#include "platform/errors.h"
#include "platform/file_system.h"

namespace fs = std::filesystem;

namespace lathwick {

namespace {
constexpr const char* kLockName = "lock";
constexpr const char* kSessionPrefix = "session-";
constexpr const char* kIndexExtension = ".index";

bool isAbsolute(const char* path) { return path != nullptr && path[0] == '/'; }

// The recovered texts are the user's own work: nobody else may read them.
void makePrivateFolder(const fs::path& folder) {
  std::error_code ec;
  fs::create_directories(folder, ec);
  if (ec || !fs::is_directory(folder)) throw makeError(err::kPathFileAccessError);
  fs::permissions(folder, fs::perms::owner_all, fs::perm_options::replace, ec);
}

bool hasIndexFiles(const fs::path& folder) {
  std::error_code ec;
  for (fs::directory_iterator it(folder, ec), end; !ec && it != end; it.increment(ec))
    if (it->path().extension() == kIndexExtension) return true;
  return false;
}

// A session whose editor still runs; a missing or unreadable lock means it ended.
bool sessionIsLive(const fs::path& folder) {
  const auto lock = readWholeFile((folder / kLockName).string());
  if (!lock) return false;
  const auto owner = decodeProcessIdentity(*lock);
  return owner && isProcessRunning(*owner);
}

void collectDocuments(const fs::path& folder, std::vector<RecoveredDocument>& out) {
  std::error_code ec;
  for (fs::directory_iterator it(folder, ec), end; !ec && it != end; it.increment(ec)) {
    if (it->path().extension() != kIndexExtension) continue;
    const auto bytes = readWholeFile(it->path().string());
    const auto index = bytes ? decodeRecoveryIndex(*bytes) : std::nullopt;
    if (!index) continue;
    const fs::path text = folder / index->textFile;
    if (!isRegularFile(text.string())) continue;
    out.push_back({*index, it->path().string(), text.string(), folder.string()});
  }
}

// An ended session without documents has nothing more to give.
void tidySession(const fs::path& folder) {
  if (hasIndexFiles(folder)) return;
  std::error_code ec;
  fs::remove_all(folder, ec);
}

const char* extensionOf(RecoveredKind kind) { return kind == RecoveredKind::Rich ? ".rtf" : ".txt"; }
}  // namespace

std::string recoveryRoot(const char* xdgStateHome, const char* home) {
  if (isAbsolute(xdgStateHome)) return (fs::path(xdgStateHome) / "lathwick/recovery").lexically_normal().string() + "/";
  if (isAbsolute(home)) return (fs::path(home) / ".local/state/lathwick/recovery").lexically_normal().string() + "/";
  return "";
}

std::string recoveryRoot() { return recoveryRoot(std::getenv("XDG_STATE_HOME"), std::getenv("HOME")); }

std::vector<RecoveredDocument> listRecoverable(const std::string& root) {
  std::vector<RecoveredDocument> out;
  std::vector<fs::path> sessions;
  std::error_code ec;
  for (fs::directory_iterator it(root, ec), end; !ec && it != end; it.increment(ec))
    if (it->is_directory() && it->path().filename().string().starts_with(kSessionPrefix)) sessions.push_back(it->path());
  for (const fs::path& session : sessions) {
    if (sessionIsLive(session)) continue;
    const std::size_t before = out.size();
    collectDocuments(session, out);
    if (out.size() == before) tidySession(session);
  }
  std::stable_sort(out.begin(), out.end(), [](const RecoveredDocument& a, const RecoveredDocument& b) {
    return a.index.savedAt > b.index.savedAt;
  });
  return out;
}

bool discardRecovered(const RecoveredDocument& document) {
  const bool present = isRegularFile(document.indexPath);
  removeFile(document.indexPath);
  removeFile(document.textPath);
  tidySession(document.sessionFolder);
  return present;
}

RecoverySession::RecoverySession(const std::string& root, const ProcessIdentity& self) : root_(root) {
  makePrivateFolder(root_);
  const fs::path base = fs::path(root_) / (kSessionPrefix + std::to_string(self.pid));
  // Made whole under a name no lister looks at, then renamed into place: another editor never
  // sees the session without its lock, and never takes it for an ended one.
  const fs::path building = fs::path(root_) / (".new-" + std::to_string(self.pid));
  std::error_code ec;
  fs::remove_all(building, ec);
  makePrivateFolder(building);
  writeFileAtomically((building / kLockName).string(), encodeProcessIdentity(self) + "\n");
  for (int n = 1; n < 1000; ++n) {
    const fs::path target = n == 1 ? base : fs::path(base.string() + "." + std::to_string(n));
    if (fs::exists(target)) continue;  // an ended session of a process with the same id
    fs::rename(building, target, ec);
    if (!ec) {
      folder_ = target.string() + "/";
      return;
    }
  }
  fs::remove_all(building, ec);
  throw makeError(err::kPathFileAccessError);
}

std::string RecoverySession::indexPathOf(int id) const { return folder_ + "doc" + std::to_string(id) + kIndexExtension; }

std::string RecoverySession::textPathOf(int id, RecoveredKind kind) const {
  return folder_ + "doc" + std::to_string(id) + extensionOf(kind);
}

void RecoverySession::write(int id, RecoveryIndex index, std::string_view text) const {
  write(id, std::move(index), [text](AtomicFileWriter& file) { file.write(text); });
}

void RecoverySession::write(int id, RecoveryIndex index, const std::function<void(AtomicFileWriter&)>& fill) const {
  const std::string textPath = textPathOf(id, index.kind);
  {
    AtomicFileWriter file(textPath);
    fill(file);
    file.commit();
  }
  index.textFile = fs::path(textPath).filename().string();
  writeFileAtomically(indexPathOf(id), encodeRecoveryIndex(index));
  // A document saved under another kind since its last copy leaves no copy of the old kind.
  const RecoveredKind other = index.kind == RecoveredKind::Rich ? RecoveredKind::Plain : RecoveredKind::Rich;
  removeFile(textPathOf(id, other));
}

void RecoverySession::remove(int id) const {
  removeFile(indexPathOf(id));
  removeFile(textPathOf(id, RecoveredKind::Plain));
  removeFile(textPathOf(id, RecoveredKind::Rich));
}

bool RecoverySession::hasDocuments() const { return hasIndexFiles(folder_); }

std::optional<RecoveredDocument> RecoverySession::adopt(const RecoveredDocument& document, int id) const {
  const std::string textPath = textPathOf(id, document.index.kind);
  std::error_code ec;
  fs::rename(document.textPath, textPath, ec);
  if (ec) return std::nullopt;
  RecoveredDocument adopted{document.index, indexPathOf(id), textPath, folder_};
  adopted.index.textFile = fs::path(textPath).filename().string();
  try {
    writeFileAtomically(adopted.indexPath, encodeRecoveryIndex(adopted.index));
  } catch (...) {
    fs::rename(textPath, document.textPath, ec);  // the old session keeps it, to be offered again
    throw;
  }
  removeFile(document.indexPath);
  tidySession(document.sessionFolder);
  return adopted;
}

void RecoverySession::close() {
  if (closed_) return;
  closed_ = true;
  removeFile(folder_ + kLockName);
  if (!hasDocuments()) {
    std::error_code ec;
    fs::remove_all(folder_, ec);
  }
}

}  // namespace lathwick
