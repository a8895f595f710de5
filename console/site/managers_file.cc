// SPDX-License-Identifier: MIT
#include "console/site/managers_file.h"

#include "companions/dbconfig/dbconfig.h"
#include "companions/dbconfig/document.h"
#include "platform/base/paths.h"

namespace site {
namespace {

std::string WrittenDocument() {
  std::string document;
  platform::ReadWholeFile(platform::DataDirectory() + "/" + dbconfig::kConfigFileName, document);
  return document;
}

}  // namespace

bool ManagersFile::Write() {
  const std::uint32_t failure = dbconfig::MakeDbConfig()->CreateAlertServerConfigFile(0);
  problem_ = failure == 0 ? "" : dbconfig::LastFailureText();
  told_ = failure == 0;
  return told_;
}

// Stores that cannot be read now say nothing about the file.
void ManagersFile::Look() {
  dbconfig::Site site;
  if (dbconfig::ReadSite(site) != alertstore::kOk) return;
  told_ = WrittenDocument() == dbconfig::WriteDocument(site);
  if (told_) problem_.clear();
}

}  // namespace site
