// The name of the configuration that the current drawing works in.
#pragma once

#include <QString>

// Empty without a drawing, or when the variable can't be read for whatever reason.
QString currentConfigurationName();
