#include "platform/pass_result.h"

#include "platform/app_names.h"

namespace lathwick {

PassResult cancelledResult(long count) {
  PassResult r;
  r.outcome = PassOutcome::Cancelled;
  r.count = count;
  r.message = kCancelledMessage;
  r.title = kCancelledTitle;
  return r;
}

PassResult failedResult(int number, const std::string& description, const char* ending) {
  PassResult r;
  r.outcome = PassOutcome::Failed;
  r.errorNumber = number;
  r.errorDescription = description;
  r.message = passErrorMessage(number, description, ending);
  return r;
}

std::string passErrorMessage(int number, const std::string& description, const char* ending) {
  return "The error " + std::to_string(number) + " " + description + ending;
}

PassReport reportOf(const PassResult& result) {
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

}  // namespace lathwick
