// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <vector>

#include "lab/host/trap_socket.h"
#include "lab/mail/smtp_session.h"
#include "lab/telephony/modem.h"

namespace lab {

/// What the command line asks for.
struct Options {
  int mail_port = 0, trap_port = 0;  ///< 0 for any that is free
  bool json = false, hurry = false;
  bool end_with_input = false;  ///< for a program that started it: it is not to outlive that one
  std::string keep, ready_file;
  std::vector<std::string> faults;
  MailSetup mail;
  TrapSetup traps;
  PagerSetup pager;
  PhoneBook book;
  ModemTimes times;
};

/// Ends the program where the command line is wrong or asks for help: then `exit_code` is where to.
bool ParseOptions(int argc, char** argv, Options& options, int& exit_code);

}  // namespace lab
