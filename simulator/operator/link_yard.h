// The yard of a simulated trailer that runs in the same process.
#pragma once

#include <string>

#include "simulator/library/link.h"
#include "simulator/operator/screen.h"

namespace lorimet::simulator {

class LinkYard : public Yard {
 public:
  // The link outlives the yard.
  explicit LinkYard(Link& link) : link_(link) {}
  void Do(const std::string& command) override { link_.Command(command); }
  std::string See(const std::string& name) override { return link_.Get(name); }

 private:
  Link& link_;
};

}  // namespace lorimet::simulator
