// SPDX-License-Identifier: MIT
#include "companions/objmodel/objmodel.h"

#include "companions/alertstore/computers.h"

namespace objmodel {
namespace {

constexpr std::uint32_t kNoSuchProperty = 1;

class RealObjectModel : public ObjectModel {
 public:
  std::uint32_t QevOMGetInstanceProperty(platform::GUID object, platform::GUID class_id,
                                         platform::GUID property, char* buffer, std::uint32_t size) override {
    if (class_id != kComputerClass || property != kNameProperty) return kNoSuchProperty;
    return alertstore::NameOfObject(alertstore::ComputerSchema(), object, size, buffer);
  }
};

}  // namespace

std::unique_ptr<ObjectModel> MakeObjectModel() { return std::make_unique<RealObjectModel>(); }

}  // namespace objmodel
