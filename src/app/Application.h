#pragma once

#include "QtSingleApplication.h"

/// The application object: its names and version, and that closing the last window does not end
/// the program, which lives on in the tray.
class Application : public QtSingleApplication
{
    Q_OBJECT

public:
    Application(int &argc, char **argv);
};
