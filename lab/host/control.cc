// SPDX-License-Identifier: MIT
#include "lab/host/control.h"

#include <unistd.h>

#include <cerrno>

namespace lab {
namespace {

constexpr char kHelp[] =
    "fault DEVICE=FAULT[:TIMES]  give a device a fault\n"
    "clear [DEVICE]              take all faults away\n"
    "faults                      the faults that there can be\n"
    "show                        the faults that there are\n"
    "quit                        end the laboratory\n";

std::string AllFaults() {
  std::string text;
  for (const KnownFault& known : KnownFaults())
    text += std::string(known.device) + "=" + known.name + "  " + known.meaning + "\n";
  return text;
}

}  // namespace

std::string Control(FaultBoard& faults, const std::string& line) {
  const std::size_t space = std::min(line.find(' '), line.size());
  const std::string verb = line.substr(0, space), argument = line.substr(std::min(space + 1, line.size()));
  if (verb == "faults") return AllFaults();
  if (verb == "show" || verb.empty()) return faults.Text();
  if (verb == "clear")
    return faults.Clear(argument) ? faults.Text() : "there is no device " + argument + "\n";
  if (verb != "fault") return kHelp;
  const std::string problem = faults.Set(argument);
  return problem.empty() ? faults.Text() : problem + "\n";
}

void ControlInput::Ready(short, Millis) {
  char bytes[512];
  const ssize_t count = read(0, bytes, sizeof bytes);
  if (count < 0 && (errno == EAGAIN || errno == EINTR)) return;
  is_at_end_ = count <= 0;
  if (is_at_end_ && end_with_input_) return quit_();
  std::string_view rest(bytes, count > 0 ? static_cast<std::size_t>(count) : 0);
  while (!rest.empty()) {
    const auto line = lines_.Take(rest);
    if (!line) return;
    *line == "quit" ? quit_() : show_(Control(faults_, *line));
  }
}

}  // namespace lab
