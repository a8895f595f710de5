// SPDX-License-Identifier: MIT
#pragma once

// Every record of the store. docs/records.md has the offset tables.

#include "companions/alertstore/records_common.h"
#include "companions/alertstore/records_device.h"
#include "companions/alertstore/records_mail.h"
#include "companions/alertstore/records_manager.h"
#include "companions/alertstore/records_telephony.h"
#include "companions/alertstore/records_user.h"
