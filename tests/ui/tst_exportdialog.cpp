#include "ImportFile.h"
#include "ItemExport.h"
#include "UiTesting.h"
#include "dialogs/ProgressDialog.h"
#include "movein/ExportDialog.h"
#include "style/Theme.h"

#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

namespace {

struct ExportStage
{
    explicit ExportStage(const std::shared_ptr<FileLayer> &files = std::make_shared<FileLayer>())
        : path(test.path("out"))
    {
        if (!test.createSafe())
            qFatal("No safe to test with");
        for (const char *title : {"Beta", "alpha"})
            ids << test.addLogin(title);
        test.core.modelAddItem(test.core.modelCreateItem(PMListItem::SecureNote));
        test.core.modelItemDeleted(test.addLogin("trashed"));
        test.core.saveCurrentSafe();
        dialog = new ExportDialog({test.core,
                                   [this](QWidget *, const QString &name) {
                                       ++asked;
                                       suggested = name;
                                       return path;
                                   },
                                   files},
                                  ids.mid(0, 1), theme, &window);
        window.show();
        dialog->show();
    }

    void enter(const QString &password) const
    {
        auto *field = find<QLineEdit>(*dialog, "exportPassword");
        field->clear();
        QTest::keyClicks(field, password);
        QTest::keyClick(field, Qt::Key_Return);
    }
    QString end() const
    {
        QPointer<ProgressDialog> progress(window.findChild<ProgressDialog *>());
        if (!progress || !QTest::qWaitFor([&progress] { return !progress->isRunning(); }))
            return {};
        return find<QLabel>(*progress, "progressText")->text();
    }
    ImportFile read() const
    {
        QFile file(path);
        return file.open(QIODevice::ReadOnly) ? readImportFile(file.readAll()) : ImportFile();
    }

    TestCore test;
    Theme theme;
    QWidget window;
    QStringList ids;
    QString path;
    QString suggested;
    int asked = 0;
    ExportDialog *dialog;
};

} // namespace

class TestExportDialog : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void exportAsksForThePassword()
    {
        ExportStage stage;
        QVERIFY(!find<QPushButton>(*stage.dialog, "exportButton")->isEnabled());
        stage.enter("master password 2"_s);
        QCOMPARE(find<QLabel>(*stage.dialog, "exportMessage")->text(),
                 "This is not the password of the safe."_s);
        QCOMPARE(stage.asked, 0);
        stage.test.core.lockCurrentSafe();
        QVERIFY(!stage.dialog->isVisible());
        QVERIFY(!QFile::exists(stage.path));
    }

    void exportComesBack()
    {
        {
            ExportStage stage;
            stage.enter(testPassword);
            QVERIFY(stage.end().startsWith(QLatin1String("1 items are in")));
            QVERIFY(stage.suggested.startsWith(QLatin1String("Personal ")));
            QVERIFY(stage.suggested.endsWith(QLatin1String(".json")));
            const ImportFile file = stage.read();
            QCOMPARE(int(file.entries.size()), 1);
            QCOMPARE(file.entries[0].text("password"), "secret of Beta"_s);
        }
        ExportStage stage;
        auto *what = find<QComboBox>(*stage.dialog, "exportWhat");
        what->setCurrentIndex(what->count() - 1);
        auto *format = find<QComboBox>(*stage.dialog, "exportFormat");
        format->setCurrentIndex(format->findData(ItemExport::Csv));
        QCOMPARE(find<QLabel>(*stage.dialog, "exportLeftOut")->text(),
                 "1 items that are no logins are left out."_s);
        stage.enter(testPassword);
        QVERIFY(stage.end().startsWith(QLatin1String("2 items are in")));
        const ImportFile file = stage.read();
        QCOMPARE(file.format, ImportFile::Chromium);
        QCOMPARE(int(file.entries.size()), 2);
        QCOMPARE(file.entries[0].text("title"), "alpha"_s);
        QCOMPARE(file.entries[1].text("password"), "secret of Beta"_s);
    }

    void exportThatFails()
    {
        struct FullDisk : FileLayer
        {
            bool write(const QString &, const Produce &, QIODevice::OpenMode) override
            {
                return false;
            }
        };
        ExportStage stage(std::make_shared<FullDisk>());
        stage.enter(testPassword);
        QVERIFY(stage.end().startsWith(QLatin1String("The file cannot be written")));
        QVERIFY(!QFile::exists(stage.path));
    }

    void exportCancelledWhileWriting()
    {
        struct Cancelling : FileLayer
        {
            bool write(const QString &path, const Produce &produce,
                       QIODevice::OpenMode mode) override
            {
                QMetaObject::invokeMethod(qApp, cancel, Qt::BlockingQueuedConnection);
                return FileLayer::write(path, produce, mode);
            }
            std::function<void()> cancel;
        };
        const auto files = std::make_shared<Cancelling>();
        ExportStage stage(files);
        QPointer<ProgressDialog> progress;
        files->cancel = [&] {
            progress = stage.window.findChild<ProgressDialog *>();
            progress->reject();
        };
        stage.enter(testPassword);
        QTRY_VERIFY(stage.window.findChild<ProgressDialog *>() == nullptr);
        QVERIFY(!progress);
        QVERIFY(!QFile::exists(stage.path));
    }
};

QTEST_MAIN(TestExportDialog)
#include "tst_exportdialog.moc"
