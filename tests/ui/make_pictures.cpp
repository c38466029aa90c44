#include "EveryWindow.h"

#include <QApplication>

#include <map>

/// Writes a picture of every window in both themes into a folder: make_pictures FOLDER
int main(int argc, char *argv[])
{
    QApplication application(argc, argv);
    const QString folder = QApplication::arguments().value(1);
    if (folder.isEmpty())
        return 1;
    std::map<Stage::Safe, std::unique_ptr<Stage>> stages;
    for (const WindowCase &shown : everyWindow()) {
        std::unique_ptr<Stage> &stage = stages[shown.safe];
        if (!stage)
            stage = std::make_unique<Stage>(shown.safe);
        for (const bool dark : {false, true}) {
            stage->theme.setDark(dark);
            const std::unique_ptr<QWidget> window = shown.make(*stage);
            for (int turn = 0; turn < 5; ++turn)
                QApplication::processEvents();
            const QString file = QStringLiteral("%1/%2-%3.png")
                                     .arg(folder, QLatin1String(shown.name),
                                          dark ? QStringLiteral("dark") : QStringLiteral("light"));
            if (!window->grab().save(file))
                return 1;
        }
    }
    return 0;
}
