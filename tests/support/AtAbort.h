#pragma once

#include <functional>
#include <string>

/// For the statement of a death test: when the process aborts, prints what `report` answers on standard error.
/// So the test sees how far the program had come.
void reportAtAbort(std::function<std::string()> report);
