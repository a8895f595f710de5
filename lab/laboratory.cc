// SPDX-License-Identifier: MIT
#include "lab/laboratory.h"

#include <fcntl.h>
#include <sys/socket.h>

#include <cerrno>
#include <cstring>

#include "lab/host/control.h"
#include "lab/host/loopback.h"
#include "lab/host/mail_listener.h"
#include "lab/host/pty.h"
#include "lab/host/stop_signal.h"
#include "lab/printer.h"
#include "platform/base/atomic_write.h"

namespace lab {
namespace {

std::string Because(const std::string& what) { return what + ": " + std::strerror(errno); }

}  // namespace

Laboratory::Laboratory(const Options& options)
    : options_(options), log_(options.json), sink_([this](const Arrival& arrival) { log_.Show(arrival); }) {}

std::string Laboratory::Open() {
  // Signals are kept back from here on, so that one which comes early does not leave a ready file behind.
  loop_.Add(std::make_unique<StopSignal>([this] { loop_.Stop(); }));
  if (!options_.keep.empty() && !log_.KeepIn(options_.keep)) return Because("cannot open " + options_.keep);
  std::string problem = SetFaults();
  if (problem.empty()) problem = OpenMail();
  if (problem.empty()) problem = OpenTraps();
  for (const char* device : {"modem", "backup-modem"})
    if (problem.empty()) problem = OpenModem(device);
  auto terminal = std::make_unique<PagerTerminal>(options_.pager, faults_.Of("pager"), sink_);
  if (problem.empty()) problem = OpenPort("pager", std::move(terminal));
  auto printer = std::make_unique<Printer>(faults_.Of("printer"), sink_, options_.hurry ? 300 : 500);
  if (problem.empty()) problem = OpenPort("printer", std::move(printer));
  if (!problem.empty()) return problem;
  AddControl();
  return TellReady();
}

std::string Laboratory::SetFaults() {
  for (const std::string& fault : options_.faults)
    if (const std::string problem = faults_.Set(fault); !problem.empty()) return problem;
  return "";
}

std::string Laboratory::OpenMail() {
  platform::Descriptor socket_fd = BindLoopback(SOCK_STREAM, options_.mail_port);
  if (!socket_fd.IsOpen()) return Because("cannot open the mail server's port");
  places_["mail"] = {{"host", "127.0.0.1"}, {"port", PortOf(socket_fd)}};
  loop_.Add(
      std::make_unique<MailListener>(loop_, std::move(socket_fd), options_.mail, faults_.Of("mail"), sink_));
  return "";
}

std::string Laboratory::OpenTraps() {
  platform::Descriptor socket_fd = BindLoopback(SOCK_DGRAM, options_.trap_port);
  if (!socket_fd.IsOpen()) return Because("cannot open the trap receiver's port");
  places_["traps"] = {{"host", "127.0.0.1"}, {"port", PortOf(socket_fd)}};
  loop_.Add(std::make_unique<TrapSocket>(std::move(socket_fd), options_.traps, faults_.Of("traps"), sink_));
  return "";
}

std::string Laboratory::OpenModem(const std::string& device) {
  return OpenPort(device, std::make_unique<Modem>(options_.book, options_.times, options_.pager,
                                                  faults_.Of(device), faults_.Of("pager"), sink_));
}

std::string Laboratory::OpenPort(const std::string& device, std::unique_ptr<Session> session) {
  auto port = std::make_unique<Pty>(std::move(session), faults_.Of(device));
  if (port->Path().empty()) return Because("cannot open a pseudo-terminal for the " + device);
  places_[device] = {{"path", port->Path()}};
  loop_.Add(std::move(port));
  return "";
}

void Laboratory::AddControl() {
  // Where standard input was closed, its number may by now be that of something else.
  if (isatty(STDIN_FILENO) == 0 && fcntl(STDIN_FILENO, F_GETFL) == -1) return;
  const auto show = [](const std::string& text) { WriteAll(STDERR_FILENO, text); };
  loop_.Add(std::make_unique<ControlInput>(
      faults_, [this] { loop_.Stop(); }, show, options_.end_with_input));
}

std::string Laboratory::TellReady() {
  sink_({"laboratory", "ready", places_});
  if (options_.ready_file.empty()) return "";
  nlohmann::ordered_json ready = {{"pid", getpid()}};
  ready.update(places_);
  return platform::WriteFileAtomically(options_.ready_file, ready.dump(1) + "\n", 0600)
             ? ""
             : Because("cannot write " + options_.ready_file);
}

}  // namespace lab
