#include "FileChooser.h"

#include "UiSettings.h"

#include <QDir>
#include <QFileDialog>
#include <QPointer>

namespace {

/// The dialog belongs to a window that may go, and takes it along, while it is shown.
QStringList answerOf(QFileDialog *made)
{
    const QPointer<QFileDialog> dialog(made);
    if (dialog->parentWidget())
        dialog->setWindowModality(Qt::WindowModal);
    const bool chosen = dialog->exec() == QDialog::Accepted;
    if (!dialog)
        return {};
    const QStringList paths = chosen ? dialog->selectedFiles() : QStringList();
    delete dialog;
    return paths;
}

QFileDialog *makeDialog(QWidget *widget, const QString &caption, const QString &folder,
                        QFileDialog::FileMode mode, const QString &filter = {})
{
    auto *dialog = new QFileDialog(widget ? widget->window() : nullptr, caption, folder, filter);
    dialog->setSupportedSchemes({QStringLiteral("file")});
    dialog->setFileMode(mode);
    return dialog;
}

} // namespace

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
        const QString path = askForFile(window(), caption, start(), filter);
        return keep(path, QFileInfo(path).path());
    };
    chooser.saveFile = [=](const QString &caption, const QString &name, const QString &filter) {
        const QString path =
            askForTarget(window(), caption, start() + QLatin1Char('/') + name, filter);
        return keep(path, QFileInfo(path).path());
    };
    chooser.folder = [=](const QString &caption) {
        const QString path = askForFolder(window(), caption, start());
        return keep(path, path);
    };
    return chooser;
}

QStringList askForFiles(QWidget *widget, const QString &caption)
{
    return answerOf(makeDialog(widget, caption, {}, QFileDialog::ExistingFiles));
}

QString askForFile(QWidget *widget, const QString &caption, const QString &folder,
                   const QString &filter)
{
    return answerOf(makeDialog(widget, caption, folder, QFileDialog::ExistingFile, filter))
        .value(0);
}

QString askForFolder(QWidget *widget, const QString &caption, const QString &folder)
{
    QFileDialog *dialog = makeDialog(widget, caption, folder, QFileDialog::Directory);
    dialog->setOption(QFileDialog::ShowDirsOnly);
    return answerOf(dialog).value(0);
}

QString askForTarget(QWidget *widget, const QString &caption, const QString &path,
                     const QString &filter)
{
    const QPointer<QWidget> parent(widget);
    const auto ask = [&](const QString &proposed) {
        const QFileInfo place(proposed);
        QFileDialog *dialog =
            makeDialog(parent, caption, place.path(), QFileDialog::AnyFile, filter);
        dialog->setAcceptMode(QFileDialog::AcceptSave);
        // With it the dialog asks about the file that is written in the end.
        dialog->setDefaultSuffix(place.suffix());
        dialog->selectFile(place.fileName());
        return answerOf(dialog).value(0);
    };
    return targetWithSuffix(ask, path);
}

QString targetWithSuffix(const std::function<QString(const QString &path)> &ask,
                         const QString &path)
{
    const QString suffix = QFileInfo(path).suffix();
    QString proposed = path;
    for (;;) {
        const QString chosen = ask(proposed);
        if (chosen.isEmpty() || suffix.isEmpty() || !QFileInfo(chosen).suffix().isEmpty())
            return chosen;
        proposed = chosen + QLatin1Char('.') + suffix;
        if (!QFileInfo::exists(proposed))
            return proposed;
    }
}
