// SPDX-License-Identifier: MIT
#include "server/serial/pager_blocks.h"

#include <algorithm>

#include "platform/base/utf8.h"

namespace alertserver {
namespace {

constexpr char kStx = 0x02, kEtx = 0x03, kEtb = 0x17;

/// One UTF-8 sequence.
char PagerCharacter(std::string_view sequence) {
  const char first = sequence.front();
  if (sequence.size() > 1 || first < 0 || first == 0x7F) return '?';
  return first >= ' ' ? first : first == '\n' ? '\r' : ' ';
}

std::string Block(const std::string& fields, char end) {
  const std::string block = kStx + fields + '\r' + end;
  return block + BlockChecksum(block) + '\r';
}

}  // namespace

std::string PagerText(std::string_view utf8) {
  std::string text;
  for (std::size_t at = 0; at < utf8.size();) {
    const std::size_t next = platform::Utf8Next(utf8, at);
    if (utf8.substr(at, 2) != "\r\n")
      text += utf8[at] == '\r' ? '\r' : PagerCharacter(utf8.substr(at, next - at));
    at = next;
  }
  return text;
}

std::vector<std::string> Pages(std::string_view text, std::size_t longest) {
  std::vector<std::string> pages;
  do {
    pages.emplace_back(text.substr(0, longest == 0 ? text.npos : longest));
    text.remove_prefix(pages.back().size());
  } while (!text.empty());
  return pages;
}

std::vector<std::string> PagerBlocks(std::string_view pager, std::string_view page) {
  std::vector<std::string> blocks;
  std::string fields = std::string(pager) + '\r';
  do {
    const std::size_t room = kBlockSize - 1 - std::min(fields.size(), kBlockSize - 2);
    const std::size_t size = std::min(room, page.size());
    fields += page.substr(0, size);
    page.remove_prefix(size);
    blocks.push_back(Block(fields, page.empty() ? kEtx : kEtb));
    fields.clear();
  } while (!page.empty());
  return blocks;
}

std::string BlockChecksum(std::string_view block) {
  unsigned sum = 0;
  for (const char c : block) sum += static_cast<unsigned char>(c) & 0x7F;
  std::string text;
  for (const unsigned shift : {8U, 4U, 0U}) text += static_cast<char>('0' + (sum >> shift & 15));
  return text;
}

}  // namespace alertserver
