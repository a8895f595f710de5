// SPDX-License-Identifier: MIT
// What a console that has the public header, and what that names, can compile.
#include <alerting/alerting.h>

std::int32_t (*const first_export)() = DomainServiceGetCount;
platform::GUID IdentityOf(std::int32_t index) { return DomainServiceGetInfo(index)->serviceId; }
