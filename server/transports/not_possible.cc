// SPDX-License-Identifier: MIT
#include "server/transports/transports.h"

namespace alertserver {
namespace {

class NotPossible : public Transport {
 public:
  explicit NotPossible(std::string why) : why_(std::move(why)) {}
  std::vector<Step> Steps(const Context&) override { return {NotPossibleStep(why_)}; }

 private:
  const std::string why_;
};

}  // namespace

Step NotPossibleStep(std::string why) {
  return {"Look for a way", [why = std::move(why)](Context&) {
            return StepOutcome::Failed(Verdict::kNotPossible, "", "Not possible from this server: " + why);
          }};
}

TransportPtr MakeNotPossible(std::string why) { return std::make_unique<NotPossible>(std::move(why)); }

TransportPtr MakeMhsMail() {
  return MakeNotPossible(
      "MHS Mail is left as files in the directory of a message server, for a gateway program that is not "
      "part of "
      "this system. Use an Internet Mail service.");
}

TransportPtr MakeMciMail() {
  return MakeNotPossible("the dial-up service MCI Mail was closed in 2003. Use an Internet Mail service.");
}

TransportPtr MakeCompuServeMail() {
  return MakeNotPossible("CompuServe's dial-up mail was closed in 2009. Use an Internet Mail service.");
}

TransportPtr MakeMicrosoftMail() {
  return MakeNotPossible(
      "Microsoft Mail is sent by a mail client (MAPI) that is there on Windows alone. Use an Internet Mail "
      "service.");
}

TransportPtr MakeCcMail() {
  return MakeNotPossible(
      "cc:Mail is sent by a mail client (VIM) that has not been made since 2000. Use an Internet Mail "
      "service.");
}

}  // namespace alertserver
