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
    for (const bool dark : {false, true}) {
        std::map<Stage::Safe, std::unique_ptr<Stage>> stages;
        for (const WindowCase &shown : everyWindow()) {
            std::unique_ptr<Stage> &stage = stages[shown.safe];
            if (!stage)
                stage = std::make_unique<Stage>(shown.safe);
            Stage::Look look;
            look.dark = dark;
            stage->open(look);
            QWidget *window = shown.show(*stage);
            if (window == stage->main && !shown.narrow)
                window->resize(1080, 680);
            else if (window == stage->main)
                stage->shrink(*window, true);
            else if (window && window->objectName() == QLatin1String("SetupWizard"))
                window->resize(562, 622); // the platform's screen is smaller
            for (int turn = 0; window && turn < 5; ++turn)
                QApplication::processEvents();
            const QString file = "%1/%2-%3.png"_s.arg(folder, QLatin1String(shown.name),
                                                      dark ? "dark"_s : "light"_s);
            if (!window || !window->grab().save(file, "PNG", 0)) {
                qWarning() << "No picture of" << shown.name;
                return 1;
            }
        }
    }
    return 0;
}
