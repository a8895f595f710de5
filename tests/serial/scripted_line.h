// SPDX-License-Identifier: MIT
#pragma once

#include <deque>
#include <string>
#include <vector>

#include "server/serial/conversation.h"

/// A line whose other side answers each thing that is written with the next reply; "" is silence. Nothing is waited for.
class ScriptedLine : public alertserver::SerialLine {
 public:
  explicit ScriptedLine(std::deque<std::string> replies) : replies_(std::move(replies)) {}

  bool Write(std::string_view bytes, Limit) override {
    written.emplace_back(bytes);
    if (replies_.empty()) return true;
    heard_ += replies_.front();
    replies_.pop_front();
    return true;
  }
  std::string Read(std::size_t most, Limit) override {
    const std::string bytes = heard_.substr(0, most);
    heard_.erase(0, most);
    return bytes;
  }

  std::vector<std::string> written;

 private:
  std::deque<std::string> replies_;
  std::string heard_;
};

/// A conversation over it, of a test that has all the time in the world.
struct ScriptedTalk {
  explicit ScriptedTalk(std::deque<std::string> replies) : line(std::move(replies)) {}

  alertserver::Job job;
  alertserver::Service service;
  alertserver::Configuration configuration;
  alertserver::Settings settings;
  alertserver::Context context{job, service, configuration, settings};
  ScriptedLine line;
  alertserver::Conversation talk{line, context};
};
