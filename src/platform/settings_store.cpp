#include "platform/settings_store.h"

#include <cstdlib>
#include <filesystem>

#include "platform/atomic_file.h"
#include "platform/bytes.h"
#include "platform/file_system.h"

namespace lathwick {

namespace {
// Values may hold any byte; CR, LF and the escape character itself are escaped so that one
// value stays on one line of the file.
std::string escape(const std::string& s) {
  std::string out;
  out.reserve(s.size());
  for (char c : s) {
    if (c == '\\') out += "\\\\";
    else if (c == '\n') out += "\\n";
    else if (c == '\r') out += "\\r";
    else out += c;
  }
  return out;
}

std::string unescape(const std::string& s) {
  std::string out;
  out.reserve(s.size());
  for (size_t i = 0; i < s.size(); ++i) {
    if (s[i] == '\\' && i + 1 < s.size()) {
      const char n = s[++i];
      out += n == 'n' ? '\n' : n == 'r' ? '\r' : n;
    } else {
      out += s[i];
    }
  }
  return out;
}
}  // namespace

SettingsStore::SettingsStore(std::string path) : path_(std::move(path)) { load(); }

std::string SettingsStore::defaultPath() {
  std::string base;
  if (const char* xdg = std::getenv("XDG_CONFIG_HOME"); xdg && *xdg) base = xdg;
  else if (const char* home = std::getenv("HOME"); home && *home) base = std::string(home) + "/.config";
  else base = ".";
  return base + "/Lathwick/Lathwick.ini";
}

SettingsStore::Section* SettingsStore::find(const std::string& section) {
  for (auto& s : sections_)
    if (equalsIgnoreCase(s.name, section)) return &s;
  return nullptr;
}

const SettingsStore::Section* SettingsStore::find(const std::string& section) const {
  return const_cast<SettingsStore*>(this)->find(section);
}

std::string SettingsStore::get(const std::string& section, const std::string& key,
                               const std::string& defaultValue) const {
  if (const Section* s = find(section))
    for (const auto& [k, v] : s->pairs)
      if (equalsIgnoreCase(k, key)) return v;
  return defaultValue;
}

bool SettingsStore::has(const std::string& section, const std::string& key) const {
  if (const Section* s = find(section))
    for (const auto& pair : s->pairs)
      if (equalsIgnoreCase(pair.first, key)) return true;
  return false;
}

void SettingsStore::save(const std::string& section, const std::string& key, const std::string& value) {
  Section* s = find(section);
  if (!s) {
    sections_.push_back({section, {}});
    s = &sections_.back();
  }
  bool stored = false;
  for (auto& [k, v] : s->pairs)
    if (equalsIgnoreCase(k, key)) {
      if (v == value) return;
      v = value;
      stored = true;
      break;
    }
  if (!stored) s->pairs.emplace_back(key, value);
  write();
}

SettingPairs SettingsStore::all(const std::string& section) const {
  if (const Section* s = find(section)) return s->pairs;
  return {};
}

void SettingsStore::deleteAll() {
  sections_.clear();
  removeFile(path_);
}

void SettingsStore::load() {
  sections_.clear();
  const auto text = readWholeFile(path_);
  if (!text) return;
  Section* current = nullptr;
  size_t pos = 0;
  while (pos < text->size()) {
    size_t end = text->find('\n', pos);
    if (end == std::string::npos) end = text->size();
    std::string line = text->substr(pos, end - pos);
    pos = end + 1;
    if (!line.empty() && line.back() == '\r') line.pop_back();
    if (line.empty() || line[0] == ';' || line[0] == '#') continue;
    if (line.front() == '[' && line.back() == ']') {
      const std::string name = line.substr(1, line.size() - 2);
      current = find(name);
      if (!current) {
        sections_.push_back({name, {}});
        current = &sections_.back();
      }
      continue;
    }
    const size_t eq = line.find('=');
    if (!current || eq == std::string::npos) continue;
    current->pairs.emplace_back(unescape(line.substr(0, eq)), unescape(line.substr(eq + 1)));
  }
}

void SettingsStore::write() const {
  std::string out;
  for (const auto& s : sections_) {
    out += "[" + s.name + "]\n";
    for (const auto& [k, v] : s.pairs) out += escape(k) + "=" + escape(v) + "\n";
    out += "\n";
  }
  std::error_code ec;
  std::filesystem::create_directories(std::filesystem::path(nativePath(path_)).parent_path(), ec);
  writeFileAtomically(path_, out);
}

}  // namespace lathwick
