#include "Application.h"

Application::Application(int &argc, char **argv)
    : QtSingleApplication(argc, argv)
{
    setApplicationName(QStringLiteral("Glaceron Password Manager"));
    setOrganizationName(QStringLiteral("Glaceron"));
    setOrganizationDomain(QStringLiteral("glaceron.example"));
    setApplicationVersion(QStringLiteral(GLACERON_VERSION));
    // Wayland finds the icon and the name by it.
    setDesktopFileName(QStringLiteral("glaceron"));
    setQuitOnLastWindowClosed(false);
}
