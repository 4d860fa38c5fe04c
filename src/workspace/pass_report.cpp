#include "workspace/pass_report.h"

#include "format/colorizer.h"
#include "format/scheme_data_file.h"
#include "platform/app_names.h"
#include "platform/bytes.h"
#include "platform/errors.h"

namespace lathwick {

PassReport reportOf(const transform::PassResult& result) {
  using transform::PassOutcome;
  const std::string caption = result.title.empty() ? std::string(kAppTitle) : result.title;
  switch (result.outcome) {
    case PassOutcome::Completed:
    case PassOutcome::NoInput:
      return {};
    case PassOutcome::Cancelled:
    case PassOutcome::Refused:
      return {true, result.message, caption, Icon::Information};
    case PassOutcome::Failed:
      return {true, result.message, caption, Icon::Exclamation};
  }
  return {};
}

PassReport reportOf(const ColorizeResult& result) {
  switch (result.outcome) {
    case ColorizeOutcome::Done:
    case ColorizeOutcome::NoInput:
      return {};
    case ColorizeOutcome::Refused:
      return {true, result.message(), kAppTitle, Icon::Information};
    case ColorizeOutcome::Cancelled:
      return {true, result.message(), kCancelTitle, Icon::Information};
    case ColorizeOutcome::Failed:
      return {true, result.message(), kAppTitle, Icon::Exclamation};
  }
  return {};
}

std::string commentStartText(const std::string& dataFile, int scheme) {
  try {
    return trimBlanks(loadScheme(dataFile, scheme).style(0, kCommentStyle).marker);
  } catch (const AppError&) {
    return "(";
  }
}

}  // namespace lathwick
