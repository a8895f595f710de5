// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>

#include "platform/base/guid.h"

namespace objmodel {

/// The class of computers, and the property that holds an object's name.
inline constexpr platform::GUID kComputerClass{0x9C786100u,
                                               std::uint16_t{0x4906},
                                               std::uint16_t{0x11CF},
                                               {0x96, 0x56, 0x00, 0x40, 0x95, 0x26, 0xCC, 0x34}};
inline constexpr platform::GUID kNameProperty{0xA74E2245u,
                                              std::uint16_t{0x4C3F},
                                              std::uint16_t{0x11CF},
                                              {0xB8, 0x63, 0x00, 0x20, 0xAF, 0x35, 0x84, 0x00}};

/// Reads properties of the objects that the site knows.
class ObjectModel {
 public:
  virtual ~ObjectModel() = default;

  /// Fills `buffer` (`size` bytes) with a property of an object as zero-terminated text, cut to the buffer on
  /// a character boundary. 0 when the object has the property; any other value leaves the buffer as it was.
  virtual std::uint32_t QevOMGetInstanceProperty(platform::GUID object, platform::GUID class_id,
                                                 platform::GUID property, char* buffer,
                                                 std::uint32_t size) = 0;
};

/// The real component: knows the computers of the site, by name.
std::unique_ptr<ObjectModel> MakeObjectModel();

}  // namespace objmodel
