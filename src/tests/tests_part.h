// The vehicle's tests put together: their results and the commands that start them.
#pragma once

#include "tests/test_commands.h"
#include "tests/test_results.h"

namespace lorimet {

struct Ports;
struct SessionPart;
struct SupportPart;

struct TestsPart {
  TestsPart(const Ports& ports, SupportPart& support, SessionPart& session);

  TestResults test_results;
  TestCommands commands;
};

}  // namespace lorimet
