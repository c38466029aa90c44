#include "UiTesting.h"
#include "dialogs/FileChooser.h"

#include <QFileDialog>
#include <QLineEdit>
#include <QMessageBox>
#include <QTimer>

class TestFileChooser : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aFileIsNotReplacedUnasked()
    {
        QTemporaryDir folder;
        QFile taken(folder.filePath("Work.gpm"_s));
        QVERIFY(taken.open(QIODevice::WriteOnly));
        taken.close();
        QWidget window;
        bool asked = false;
        QTimer::singleShot(0, &window, [&] {
            auto *dialog = window.findChild<QFileDialog *>();
            QTimer::singleShot(0, dialog, [&] {
                auto *question = dialog->findChild<QMessageBox *>();
                asked = question != nullptr;
                if (question)
                    question->reject();
                dialog->reject();
            });
            find<QLineEdit>(*dialog, "fileNameEdit")->setText("Work"_s);
            QMetaObject::invokeMethod(dialog, "accept");
        });
        QCOMPARE(askForTarget(&window, {}, folder.filePath("Home.gpm"_s)), QString());
        QVERIFY(asked);

        // A dialog that leaves the suffix away is shown again with the name that is taken.
        QStringList proposed;
        const auto ask = [&](const QString &path) {
            proposed << QFileInfo(path).fileName();
            return proposed.size() > 1 ? path : folder.filePath("Work"_s);
        };
        QCOMPARE(targetWithSuffix(ask, "Home.gpm"_s), taken.fileName());
        QCOMPARE(proposed, QStringList({"Home.gpm"_s, "Work.gpm"_s}));
        QVERIFY(taken.remove());
        proposed.clear();
        QCOMPARE(targetWithSuffix(ask, "Home.gpm"_s), taken.fileName());
        QCOMPARE(proposed.size(), 1);
    }
};

QTEST_MAIN(TestFileChooser)
#include "tst_filechooser.moc"
