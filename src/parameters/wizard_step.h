// Where the user is in the parameter wizard.
#pragma once

#include <string>

#include "parameters/wizard.h"

namespace lorimet {

enum class WizardStep { kSystem, kGio, kLoadSensing, kOverturnGuard };

// "Step 2 of 4" in the user's language. A system with one modulator has no GIO page.
std::string StepWords(const WizardParts& parts, WizardStep step);

}  // namespace lorimet
