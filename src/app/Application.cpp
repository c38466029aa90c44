#include "Application.h"

Application::Application(int &argc, char **argv)
    : QtSingleApplication(argc, argv)
{
    setApplicationName(QStringLiteral("Glaceron Password Manager"));
    setOrganizationName(QStringLiteral("Glaceron"));
    setOrganizationDomain(QStringLiteral("glaceron.example"));
    setApplicationVersion(QStringLiteral("1.1.32"));
    setQuitOnLastWindowClosed(false);
}
