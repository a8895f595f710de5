// SPDX-License-Identifier: MIT
// Whoever can write to the spool can write any job; the server reads it before it knows anything about it.
#include <cstdlib>

#include "server/command_line.h"
#include "server/job.h"
#include "server/mail_message.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size);

namespace {

/// Texts that are longer than their keywords can make them, or a line break in a header, are faults.
void Use(const alertserver::Job& job) {
  const alertserver::KeywordSources sources{job.response.user_name, "host", "site", "127.0.0.1", job.time};
  const std::string message = FillKeywords(job.response.message, sources);
  if (message.size() > job.response.message.text.size() + 20 * 1000) std::abort();
  alertserver::SplitCommandLine(message);
  const std::string mail = alertserver::MailText({"a@b", "c@d", FillKeywords(job.response.subject, sources),
                                                  message, job.response.priority, job.time, "id@host"});
  const std::size_t headers = mail.find("\r\n\r\n");
  if (mail.find("\r\nMIME-Version: 1.0\r\n") > headers) std::abort();
}

}  // namespace

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string text(reinterpret_cast<const char*>(data), size);
  std::string problem;
  const auto job = alertserver::ParseJob(text, 7, problem);
  if (job.has_value() != problem.empty()) std::abort();
  if (job) Use(*job);
  if (job) alertserver::ParseJob(alertserver::WithTry(text, {}, job->time), 7, problem);
  return 0;
}
