// SPDX-License-Identifier: MIT
// A sound to be played is any file that somebody named. What is no wave sound is refused before a player sees it.
#include <fcntl.h>
#include <sys/mman.h>
#include <unistd.h>

#include <algorithm>
#include <cstdint>
#include <cstdlib>
#include <string>
#include <string_view>

#include "platform/base/descriptor.h"
#include "server/transports/transports.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size);

namespace {

using namespace alertserver;  // NOLINT: a fuzzer of its parts

StepOutcome Read(const std::string& path) {
  Job job;
  job.subject = path;
  const Service service;
  const Configuration configuration;
  const Settings settings;
  Context context{job, service, configuration, settings};
  const TransportPtr sound = MakeWaveFile();
  const auto steps = sound->Steps(context);
  const auto step = std::ranges::find(steps, "Read the file", &Step::name);
  if (step == steps.end()) std::abort();
  return step->run(context);
}

/// The form type of a RIFF file stands behind the eight bytes of its chunk.
bool IsWave(std::string_view bytes) {
  return bytes.size() >= 12 && bytes.substr(0, 4) == "RIFF" && bytes.substr(8, 4) == "WAVE";
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const platform::Descriptor file(memfd_create("sound", MFD_CLOEXEC));
  if (!file.IsOpen() || write(file.Get(), data, size) != static_cast<ssize_t>(size)) std::abort();
  const StepOutcome outcome = Read("/proc/self/fd/" + std::to_string(file.Get()));
  const bool taken = outcome.kind == StepOutcome::Kind::kDone;
  if (taken != IsWave({reinterpret_cast<const char*>(data), size})) std::abort();
  return 0;
}
