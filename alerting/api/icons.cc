// SPDX-License-Identifier: MIT
// The icon strip from which the console draws services.
#include <memory>

#include "alerting/alerting.h"
#include "alerting/api/call.h"
#include "platform/ui/image.h"

using namespace alerting;  // NOLINT: exports speak the library's language

namespace {

constexpr char kStrip[] = "bitmaps/service_icons.bmp";

ui::Bitmap* LoadStrip() {
  return Call<ui::Bitmap*>(nullptr, []() -> ui::Bitmap* {
    std::optional<ui::Bitmap> strip = ui::DecodeBmp(TheModule().Resource(kStrip));
    return strip ? std::make_unique<ui::Bitmap>(std::move(*strip)).release() : nullptr;
  });
}

}  // namespace

extern "C" {

ui::Bitmap* GetIconBitmap() { return LoadStrip(); }

ui::Bitmap* GetIconBitmapObject() { return LoadStrip(); }

std::uint32_t DeleteIconBitmapObject(ui::Bitmap* bitmap) {
  if (bitmap == nullptr) return 0;
  delete bitmap;
  return 1;
}

std::int32_t GetSpecialIconOffset(std::int32_t code) {
  switch (code) {
    case 0:
      return 3;
    case 1:
      return 2;
    case 2:
      return 0;
    case 3:
      return 1;
    case 5:
      return 17;
    case 6:
      return 18;
    default:
      return -1;
  }
}

}  // extern "C"
