#include "format/scheme_json.h"

#include <cstdio>

namespace lathwick {

namespace {

std::string quoted(std::string_view s) {
  std::string out = "\"";
  for (char c : s) {
    const auto u = static_cast<unsigned char>(c);
    switch (c) {
      case '"': out += "\\\""; break;
      case '\\': out += "\\\\"; break;
      case '\r': out += "\\r"; break;
      case '\n': out += "\\n"; break;
      case '\t': out += "\\t"; break;
      default:
        if (u < 32 || u >= 128) {
          char buf[8];
          std::snprintf(buf, sizeof buf, "\\u%04x", u);
          out += buf;
        } else {
          out += c;
        }
    }
  }
  return out + "\"";
}

std::string flag(bool on) { return on ? "true" : "false"; }

std::string styleJson(const SchemeStyle& s, int index) {
  std::string o = "{\"index\": " + std::to_string(index);
  o += ", \"colour\": " + std::to_string(s.colour);
  o += ", \"colourNumber\": " + std::to_string(s.colourNumber);
  o += ", \"size\": " + std::to_string(s.size);
  o += ", \"fontName\": " + quoted(s.fontName);
  o += ", \"fontNumber\": " + std::to_string(s.fontNumber);
  o += ", \"bold\": " + flag(s.bold);
  o += ", \"strikeout\": " + flag(s.strikeout);
  o += ", \"underline\": " + flag(s.underline);
  o += ", \"italic\": " + flag(s.italic);
  o += ", \"marker\": " + quoted(s.marker);
  o += ", \"indentSteps\": " + std::to_string(s.indentSteps);
  o += ", \"attributes\": " + quoted(s.attributes);
  o += ", \"family\": " + quoted(s.family);
  return o + "}";
}

}  // namespace

std::string schemeJson(const SchemeRecord& r, long recordNumber) {
  std::string o = "{\n  \"record\": " + std::to_string(recordNumber) + ",\n";
  o += "  \"rtfHeader\": " + quoted(r.rtfHeader) + ",\n";
  o += "  \"rtfTrailer\": " + quoted(r.rtfTrailer) + ",\n";
  o += "  \"name\": " + quoted(r.name) + ",\n";
  o += "  \"backColour\": " + std::to_string(r.backColour) + ",\n";
  o += "  \"sets\": [\n";
  for (int set = 0; set < kSetCount; ++set) {
    o += "    [\n";
    for (int i = 0; i < kStyleCount; ++i)
      o += "      " + styleJson(r.sets[set][i], i) + (i + 1 < kStyleCount ? ",\n" : "\n");
    o += set + 1 < kSetCount ? "    ],\n" : "    ]\n";
  }
  return o + "  ]\n}";
}

}  // namespace lathwick
