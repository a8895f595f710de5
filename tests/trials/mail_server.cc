// SPDX-License-Identifier: MIT
#include "tests/trials/mail_server.h"

#include <filesystem>
#include <fstream>
#include <sstream>

#include "platform/base/base64.h"
#include "platform/base/paths.h"
#include "tests/server/smtp_responder.h"

namespace fs = std::filesystem;

namespace trials {
namespace {

constexpr unsigned kNobody = 65534;

/// The server serves as whoever starts it, and refuses to file mail as the system's administrator.
unsigned Account() { return geteuid() == 0 ? kNobody : geteuid(); }
unsigned Group() { return geteuid() == 0 ? kNobody : getegid(); }

std::string ReadAll(const fs::path& path) {
  std::string bytes;
  platform::ReadWholeFile(path, bytes);
  return bytes;
}

FiledMail Parse(std::string whole) {
  const std::size_t end = whole.find("\n\n");
  std::string body = end == std::string::npos ? "" : whole.substr(end + 2);
  return {std::move(whole), std::move(body)};
}

std::string Decoded(std::string base64) {
  std::erase(base64, '\n');
  return platform::DecodeBase64(base64).value_or("no base64: " + base64);
}

std::string WithUnixLines(std::string text) {
  for (std::size_t at; (at = text.find("\r\n")) != std::string::npos;) text.erase(at, 1);
  return text;
}

constexpr char kSettings[] = R"(
primary_hostname = localhost
local_interfaces = 127.0.0.1
deliver_drop_privilege
keep_environment =
log_selector = +all
message_size_limit = 100K
tls_advertise_hosts = *
acl_smtp_rcpt = check_recipient
acl_smtp_data = accept
begin acl
check_recipient:
  deny domains = refused.example
       message = nobody lives here
)";

constexpr char kFiling[] = R"(
  accept
begin routers
all:
  driver = accept
  transport = box
begin transports
box:
  driver = appendfile
  maildir_format
  create_directory
  envelope_to_add
  return_path_add
)";

}  // namespace

std::string FiledMail::Field(const std::string& name) const {
  const std::size_t end = whole.find("\n\n"), at = ("\n" + whole.substr(0, end)).find("\n" + name + ": ");
  if (at == std::string::npos) return "";
  std::string value;
  std::istringstream lines(whole.substr(at + name.size() + 2, end));
  std::getline(lines, value);
  for (std::string line; std::getline(lines, line) && line.starts_with(' ');) value += "\n" + line;
  return value;
}

std::string FiledMail::Text() const {
  return Field("Content-Transfer-Encoding") == "base64" ? WithUnixLines(Decoded(body)) : body;
}

std::string DecodedField(const std::string& value) {
  const std::string start = "=?UTF-8?B?", end = "?=";
  std::string text;
  std::istringstream words(value);
  for (std::string word; words >> word;) {
    if (!word.starts_with(start) || !word.ends_with(end)) return value;
    text += Decoded(word.substr(start.size(), word.size() - start.size() - end.size()));
  }
  return text;
}

bool MailServer::IsInstalled() { return access(kProgram, X_OK) == 0; }

MailServer::MailServer(const std::string& login, const std::string& password)
    : port_(test_support::ClosedPort()) {
  std::ofstream(root_ + "/configuration") << Configuration(login, password);
  std::vector<std::string> words{kProgram, "-C", root_ + "/configuration", "-bdf", "-odi"};
  if (geteuid() == 0) {
    EXPECT_EQ(chown(root_.c_str(), Account(), Group()), 0);
    const std::string account = std::to_string(kNobody);
    words.insert(words.begin(),
                 {"/usr/bin/setpriv", "--reuid=" + account, "--regid=" + account, "--clear-groups"});
  }
  program_ = std::make_unique<test_support::Program>(words, root_ + "/said");
}

std::string MailServer::Configuration(const std::string& login, const std::string& password) const {
  const std::string account = std::to_string(Account()), group = std::to_string(Group());
  std::ostringstream text;
  text << "exim_user = " << account << "\nexim_group = " << group << "\nspool_directory = " << root_
       << "/spool\nlog_file_path = " << root_ << "/%slog\npid_file_path = " << root_
       << "/pid\ndaemon_smtp_ports = " << port_ << kSettings;
  if (!login.empty()) text << "  require authenticated = *\n";
  text << kFiling << "  directory = " << root_ << "/box\n  user = " << account << "\n  group = " << group
       << "\n";
  if (login.empty()) return text.str();
  text << "begin authenticators\nplain:\n  driver = plaintext\n  public_name = PLAIN\n  server_prompts = :\n "
          " server_condition = "
          "${if and{{eq{$auth2}{"
       << login << "}}{eq{$auth3}{" << password << "}}}}\n  server_set_id = $auth2\n";
  return text.str();
}

bool MailServer::IsReady() const {
  return test_support::Until([&] { return Log().find("listening for SMTP") != std::string::npos; });
}

std::vector<FiledMail> MailServer::Filed(std::size_t count) const {
  std::vector<FiledMail> mails;
  test_support::Until([&] {
    mails.clear();
    std::error_code none;
    for (const auto& entry : fs::directory_iterator(root_ + "/box/new", none))
      mails.push_back(Parse(ReadAll(entry.path())));
    return mails.size() >= count;
  });
  return mails;
}

std::string MailServer::Log() const { return ReadAll(root_ + "/mainlog") + ReadAll(root_ + "/said"); }

}  // namespace trials
