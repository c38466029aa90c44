#pragma once

#include <string>

/// What tells this computer from all others and stays when the program is installed anew: the
/// machine id on Linux, the serial number of the disk on Windows. Never to be sent or stored as it
/// is, only a hash of it made for one purpose. Empty where the system does not tell.
std::string machineIdentity();
