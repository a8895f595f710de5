// SPDX-License-Identifier: MIT
#include "server/secrets.h"

#include <algorithm>
#include <utility>

#include "platform/base/base64.h"

namespace alertserver {
namespace {

constexpr std::string_view kMask = "***";

void ReplaceAll(std::string& text, const std::string& what) {
  std::string::size_type at = 0;
  while ((at = text.find(what, at)) != std::string::npos) {
    text.replace(at, what.size(), kMask);
    at += kMask.size();
  }
}

}  // namespace

void Secrets::Add(std::string_view secret) {
  if (secret.empty()) return;
  Keep(std::string(secret));
  Keep(platform::EncodeBase64(secret));
}

void Secrets::Keep(std::string secret) {
  const auto place =
      std::ranges::find_if(secrets_, [&](const std::string& kept) { return kept.size() <= secret.size(); });
  secrets_.insert(place, std::move(secret));
}

std::string Secrets::Mask(std::string text) const {
  for (const std::string& secret : secrets_) ReplaceAll(text, secret);
  return text;
}

}  // namespace alertserver
