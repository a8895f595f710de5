// SPDX-License-Identifier: MIT
#pragma once

#include "alerting/testing/file_tests.h"
#include "alerting/testing/message_tests.h"
#include "alerting/testing/select_user_dlg.h"
#include "alerting/testing/sends.h"

// The tests of all types, as the table of windows names them. Each runs its dialog and answers whether it ended with OK.

namespace alerting {

inline constexpr MessageTest kAlphaTest{
    "Site Alerting Service Test: ", "&Message:", ctxhelp::kHelpMessageTest, 0, false,
    MessageTest::Target::kUser};
inline constexpr MessageTest kNumericTest{
    "Site Alerting Service Test:", "&Message:", ctxhelp::kHelpMessageTest, 32, true,
    MessageTest::Target::kUser};
inline constexpr MessageTest kSpeechTest{
    "Site Alerting Service Test: ", "&Message:", ctxhelp::kHelpSpeechTest, 2048, false,
    MessageTest::Target::kComputer};
inline constexpr MessageTest kPlainTest{
    "Site Alerting Service Test: ", "&Message:", ctxhelp::kHelpMessageTest, 1024, false,
    MessageTest::Target::kNobody};
inline constexpr MessageTest kAlphaUserTest{
    "User Alerting Service Test:", "&Message Body:", ctxhelp::kHelpMessageTest, 0, false,
    MessageTest::Target::kNobody};
inline constexpr MessageTest kNumericUserTest{
    "User Alerting Service Test:", "&Message Body:", ctxhelp::kHelpMessageTest, 32, true,
    MessageTest::Target::kNobody};

template <const MessageTest& kTest>
bool RunMessageTest(CNtfyService& service, ui::Window* parent) {
  return CMessageTestDlg(parent, service, kTest, kNullGuid).RunModal() == ui::kOk;
}

template <const MessageTest& kTest>
bool RunMessageUserTest(CNtfyService& service, const GUID& user, ui::Window* parent) {
  return CMessageTestDlg(parent, service, kTest, user).RunModal() == ui::kOk;
}

inline bool RunMailTest(CNtfyService& service, ui::Window* parent) {
  return CMailTestDlg(parent, service, nullptr).RunModal() == ui::kOk;
}

inline bool RunMailUserTest(CNtfyService& service, const GUID& user, ui::Window* parent) {
  return CMailTestDlg(parent, service, &user).RunModal() == ui::kOk;
}

template <class Dialog>
bool RunFileTest(CNtfyService& service, ui::Window* parent) {
  return Dialog(parent, service).RunModal() == ui::kOk;
}

}  // namespace alerting
