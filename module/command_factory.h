// How the host reaches the command objects of the attach job and of the group job.
#pragma once

#include "host/cmd_process.h"

// A new command object by its class name, with one reference for the caller; null for an unknown name.
extern "C" ICmdProcess* createHostCommand(const char* className);
