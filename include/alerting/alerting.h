// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>

#include "companions/alertstore/records.h"
#include "platform/base/guid.h"

/// The functions that libalerting.so exports. What holds for all of them:
///
/// 1. A service is named by its index in the library's list (from 0, in the store's order, types without a
///    class left out) or by its identity. Indices shift when a service is deleted and when CloseDBs was called.
/// 2. Results are 1 for success and 0 for failure unless a function says otherwise. An invalid index, an unknown
///    identity and a list that cannot be read are failures.
/// 3. Failures of the stores are shown to the person at once, in a message box with the title "Alerting".
/// 4. All calls come from the user-interface thread. CloseDBs and deletions are not called while a window of the
///    library is open: it works on the service. No exception leaves a function.
/// 5. Records passed in belong to the caller; records handed out belong to the library.
/// 6. The symbol of a function is its name with a leading underscore, versioned "ARGS_n" by the n bytes of its
///    arguments: platform::DynamicLibrary::Find("_DomainServiceType@16") finds it. OpenDBs and CloseDBs are
///    plain.
///
/// Beside this folder a console needs the records that pass through the functions and what they are made of, by
/// the same paths: companions/alertstore/records*.h and record_fields.h, and platform/base. Nothing of the library's
/// own folder is needed. Windows, pictures and panels are known here by name alone: platform/ui/image.h says what a
/// picture is, and alert_page.h, which needs platform/ui, what a panel is and how it is hosted.
namespace platform::ui {
class Bitmap;
class Window;
}  // namespace platform::ui

namespace alerting {
class CAlertPage;
}

extern "C" {
#define ALERTING_EXPORT(result, name, arguments, bytes) \
  __attribute__((visibility("default"))) result name arguments __asm__("_" #name);
#define ALERTING_PLAIN_EXPORT(result, name, arguments) \
  __attribute__((visibility("default"))) result name arguments;
#include "alerting/exports.def"
#undef ALERTING_EXPORT
#undef ALERTING_PLAIN_EXPORT
}
