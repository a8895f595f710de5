// SPDX-License-Identifier: MIT
#include "companions/agentui/corrections.h"

namespace agentui {
namespace {

Corrections* g_corrections = nullptr;

}  // namespace

void RegisterCorrections(Corrections* corrections) { g_corrections = corrections; }

Corrections* RegisteredCorrections() { return g_corrections; }

}  // namespace agentui
