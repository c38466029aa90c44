#include "FileChooser.h"

#include "UiSettings.h"

#include <QDir>
#include <QFileDialog>
#include <QPointer>

FileChooser dialogFileChooser(QWidget *widget, UiSettings &settings)
{
    const QPointer<QWidget> parent(widget);
    const auto window = [parent] { return parent ? parent->window() : nullptr; };
    const auto start = [&settings] {
        const QString folder = settings.lastFolder();
        return QDir(folder).exists() && !folder.isEmpty() ? folder : QDir::homePath();
    };
    const auto keep = [&settings](const QString &path, const QString &folder) {
        if (!path.isEmpty())
            settings.setLastFolder(folder);
        return path;
    };
    FileChooser chooser;
    chooser.openFile = [=](const QString &caption, const QString &filter) {
        const QString path = QFileDialog::getOpenFileName(window(), caption, start(), filter);
        return keep(path, QFileInfo(path).path());
    };
    chooser.saveFile = [=](const QString &caption, const QString &name, const QString &filter) {
        const QString path = QFileDialog::getSaveFileName(
            window(), caption, start() + QLatin1Char('/') + name, filter);
        return keep(path, QFileInfo(path).path());
    };
    chooser.folder = [=](const QString &caption) {
        const QString path = QFileDialog::getExistingDirectory(window(), caption, start());
        return keep(path, path);
    };
    return chooser;
}
