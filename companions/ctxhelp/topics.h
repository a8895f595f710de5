// SPDX-License-Identifier: MIT
#pragma once

namespace ctxhelp {

/// The help topics. Each form has a block of a hundred numbers, whose first is the form itself. The numbers
/// are the keys of resources/help/topics.json; a test holds the two against each other.
enum Topic : int {
  // Internet Mail, General page
  kTopicSmtpGeneral = 1000,
  kTopicSmtpEnable = 1001,
  kTopicSmtpTest = 1002,
  kTopicSmtpServer = 1003,
  kTopicSmtpBrowse = 1004,
  kTopicSmtpLogin = 1005,
  kTopicSmtpPassword = 1006,
  kTopicSmtpVerifyPassword = 1007,

  // Default Message page of the mail services
  kTopicDefaultMessage = 1100,
  kTopicDefaultMessageSubject = 1101,
  kTopicDefaultMessageSubjectFields = 1102,
  kTopicDefaultMessageBody = 1103,
  kTopicDefaultMessageBodyFields = 1104,
  kTopicDefaultMessagePriority = 1105,

  // Choose Keyword dialog
  kTopicChooseKeyword = 1200,
  kTopicChooseKeywordList = 1201,
  kTopicChooseKeywordOk = 1202,
  kTopicChooseKeywordCancel = 1203,

  // Dialogs of the recently used entries
  kTopicRecent = 1300,
  kTopicRecentList = 1301,
  kTopicRecentOk = 1302,
  kTopicRecentCancel = 1303,
};

/// Every topic, for whoever checks that all of them have a text.
inline constexpr Topic kAllTopics[] = {
    kTopicSmtpGeneral,
    kTopicSmtpEnable,
    kTopicSmtpTest,
    kTopicSmtpServer,
    kTopicSmtpBrowse,
    kTopicSmtpLogin,
    kTopicSmtpPassword,
    kTopicSmtpVerifyPassword,
    kTopicDefaultMessage,
    kTopicDefaultMessageSubject,
    kTopicDefaultMessageSubjectFields,
    kTopicDefaultMessageBody,
    kTopicDefaultMessageBodyFields,
    kTopicDefaultMessagePriority,
    kTopicChooseKeyword,
    kTopicChooseKeywordList,
    kTopicChooseKeywordOk,
    kTopicChooseKeywordCancel,
    kTopicRecent,
    kTopicRecentList,
    kTopicRecentOk,
    kTopicRecentCancel,
};

}  // namespace ctxhelp
