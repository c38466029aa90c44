#include "FileNames.h"
#include "PMAttachment.h"
#include "PMLogin.h"
#include "PrivateFiles.h"
#include "SafeTesting.h"

#include <QBuffer>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QtTest>

#include <unistd.h>

namespace {

struct Safe
{
    Safe()
    {
        QDir().mkpath(folder.filePath("safe"_s));
        qRegisterMetaType<AttachmentFault>("AttachmentFault");
        environment.files = files;
        safe = std::make_unique<GPMSafe>(environment);
        if (!safe->init(path(), samplePassword, "Safe"_s, {}))
            qFatal("no safe to test with");
        auto login = std::make_unique<PMLogin>();
        login->setTitle("Cloudmail"_s);
        parentId = safe->addItem(std::move(login))->id();
    }

    QString path() const { return folder.filePath("safe"_s); }
    QString file(const QString &name, const QByteArray &content)
    {
        const QString filePath = folder.filePath(name);
        writeFile(filePath, content);
        return filePath;
    }
    void add(const QString &title, const AttachmentSource &source)
    {
        auto item = std::make_unique<PMAttachment>();
        item->setTitle(title);
        item->setFilename(title);
        safe->addAttachmentAsync(std::move(item), source, parentId);
    }
    QByteArray bytesOf(const QString &id) const
    {
        QBuffer buffer;
        buffer.open(QIODevice::WriteOnly);
        return safe->readAttachment(id, buffer) ? buffer.data() : QByteArray("unreadable");
    }
    QStringList titles() const
    {
        QStringList list;
        for (const QString &id : safe->item(parentId)->refs())
            list.append(safe->item(id)->title());
        return list;
    }

    QTemporaryDir folder;
    std::shared_ptr<FaultyFiles> files = std::make_shared<FaultyFiles>();
    SafeEnvironment environment;
    std::unique_ptr<GPMSafe> safe;
    QString parentId;
};

QStringList filesBelow(const QString &folder)
{
    return snapshot(folder).keys();
}

/// The rights of owner, group and others; what the user of this test may do is another thing.
QFile::Permissions rightsOf(const QString &path)
{
    return QFile::permissions(path) & ~QFile::Permissions(0x0700);
}

bool produceSecret(QIODevice &device)
{
    return device.write("secret") == 6;
}

} // namespace

class TestAttachments : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void takesFilesAndBytesInOrder()
    {
        Safe test;
        QSignalSpy done(test.safe.get(), &GPMSafe::attachmentDone);
        const QByteArray large(3000000, 'x');
        test.add("large"_s, {test.file("large"_s, large), {}});
        test.add("empty"_s, {test.file("empty"_s, {}), {}});
        test.add("picture"_s, {{}, QByteArray("\x89PNG")});
        while (done.size() < 3)
            QVERIFY(done.wait());
        QCOMPARE(test.titles(), QStringList({"large"_s, "empty"_s, "picture"_s}));
        const QStringList refs = test.safe->item(test.parentId)->refs();
        QCOMPARE(test.bytesOf(refs.at(0)), large);
        QCOMPARE(test.bytesOf(refs.at(1)), QByteArray());
        QCOMPARE(test.bytesOf(refs.at(2)), QByteArray("\x89PNG"));
        const qint64 shown = test.safe->attachmentSize(refs.at(0)) - large.size();
        QVERIFY(shown >= 0 && shown <= 15);
    }

    void lockingLosesNoneThatIsUnderWay()
    {
        Safe test;
        const QByteArray content(2000000, 'y');
        for (const QString &name : {"a"_s, "b"_s, "c"_s})
            test.add(name, {test.file(name, content), {}});
        test.safe->lock();
        QVERIFY(test.safe->unlock(samplePassword));
        QCOMPARE(test.titles(), QStringList({"a"_s, "b"_s, "c"_s}));
        QCOMPARE(test.bytesOf(test.safe->item(test.parentId)->refs().last()), content);
        // Those behind a change of password are under the new one.
        test.add("d"_s, {{}, QByteArray("later")});
        QVERIFY(test.safe->changePassword("other"_s));
        test.safe->lock();
        QVERIFY(test.safe->unlock("other"_s));
        QCOMPARE(test.bytesOf(test.safe->item(test.parentId)->refs().last()), QByteArray("later"));
    }

    /// The last save of a lock is behind the one that an arrival asks for.
    void lockingTriesAgainWhatAnArrivalCouldNotSave()
    {
        Safe test;
        QVERIFY(test.safe->saveChanges());
        test.files->failAt = test.files->operations + 2;
        QTest::ignoreMessage(QtWarningMsg, QRegularExpression("saveChanges"_s));
        test.add("a"_s, {{}, QByteArray("a")});
        test.safe->lock();
        QVERIFY(test.safe->unlock(samplePassword));
        QCOMPARE(test.safe->itemCount(), 2);
        QCOMPARE(test.titles(), QStringList("a"_s));
    }

    void refuses_data()
    {
        QTest::addColumn<qint64>("size");
        QTest::addColumn<QString>("path");
        QTest::addColumn<int>("fault");
        const QString none;
        QTest::newRow("largest") << qint64(10485760) << none << int(AttachmentFault::None);
        QTest::newRow("larger") << qint64(10485761) << none << int(AttachmentFault::TooLarge);
        QTest::newRow("folder") << qint64(-1) << QDir::tempPath()
                                << int(AttachmentFault::Unreadable);
        QTest::newRow("missing") << qint64(-1) << "/no/such/file"_s
                                 << int(AttachmentFault::Unreadable);
        QTest::newRow("endless") << qint64(-1) << "/dev/zero"_s << int(AttachmentFault::Unreadable);
        // Says that it is empty and is not.
        QTest::newRow("grows") << qint64(-1) << "/proc/self/status"_s << int(AttachmentFault::None);
    }
    void refuses()
    {
        QFETCH(qint64, size);
        QFETCH(QString, path);
        QFETCH(int, fault);
        Safe test;
        if (size >= 0) {
            path = test.file("big"_s, {});
            QVERIFY(QFile::resize(path, size));
        }
        QSignalSpy done(test.safe.get(), &GPMSafe::attachmentDone);
        test.add("file"_s, {path, {}});
        QVERIFY(done.wait());
        QCOMPARE(int(done.first().at(2).value<AttachmentFault>()), fault);
        const bool taken = fault == int(AttachmentFault::None);
        QCOMPARE(test.titles().size(), taken ? 1 : 0);
        QCOMPARE(filesBelow(test.path() + "/attachment"_s).size(), taken ? 1 : 0);
        if (size >= 0 && taken)
            QCOMPARE(qint64(test.bytesOf(test.safe->item(test.parentId)->refs().first()).size()),
                     size);
    }

    void fullDiskLeavesNothing()
    {
        Safe test;
        QSignalSpy done(test.safe.get(), &GPMSafe::attachmentDone);
        test.files->failAt = test.files->operations + 1;
        QTest::ignoreMessage(QtWarningMsg, QRegularExpression("addAttachment"_s));
        test.add("lost"_s, {{}, QByteArray("lost")});
        test.add("next"_s, {{}, QByteArray("next")});
        while (done.size() < 2)
            QVERIFY(done.wait());
        QCOMPARE(int(done.first().at(2).value<AttachmentFault>()),
                 int(AttachmentFault::NotWritten));
        QCOMPARE(test.titles(), QStringList("next"_s));
        QCOMPARE(filesBelow(test.path() + "/attachment"_s).size(), 1);
    }

    void fileNames_data()
    {
        QTest::addColumn<QString>("given");
        QTest::addColumn<QString>("clean");
        QTest::addColumn<bool>("risky");
        const auto row = [](const char *name, const char16_t *given, const char16_t *clean,
                            bool risky) {
            QTest::newRow(name) << QString::fromUtf16(given) << QString::fromUtf16(clean) << risky;
        };
        row("plain", u"recovery-codes.txt", u"recovery-codes.txt", false);
        row("letters", u"Überweisung 東京.pdf", u"Überweisung 東京.pdf", false);
        row("above the first plane", u"\U0001F511 keys.txt", u"\U0001F511 keys.txt", false);
        row("path", u"../../etc/passwd", u"passwd", false);
        row("other path", u"C:\\Windows\\x.txt", u"x.txt", false);
        row("parent", u"..", u"attachment", false);
        row("folder", u"a/", u"attachment", false);
        row("empty", u"", u"attachment", false);
        row("stream", u"a.txt:b.exe", u"a.txt_b.exe", true);
        row("control", u"a\n\r\tb\u0000.txt", u"ab", false);
        row("turned", u"invoice\u202Efdp.exe", u"invoicefdp.exe", true);
        row("isolated", u"\u2066x\u2069.txt", u"x.txt", false);
        row("invisible", u"a\u200b\ufeff.sh", u"a.sh", true);
        row("trailing dot", u"run.EXE. .", u"run.EXE", true);
        row("device", u"nul.txt", u"_nul.txt", false);
        row("hidden", u".bashrc", u".bashrc", false);
        row("launcher", u"x.desktop", u"x.desktop", true);
        row("page", u"x.html", u"x.html", true);
        row("no ending", u"exe", u"exe", false);
    }
    void fileNames()
    {
        QFETCH(QString, given);
        QTEST(cleanFileName(given), "clean");
        QTEST(isRiskyFileName(given), "risky");
    }

    void longFileNamesKeepTheirEnding()
    {
        const QString name = cleanFileName(QString(400, QChar(0x6771)) + ".txt"_s);
        QVERIFY(name.toUtf8().size() <= 200);
        QVERIFY(name.endsWith(".txt"_s));
        const QString keys = QString::fromUcs4(U"\U0001F511");
        const QString cut = cleanFileName(keys.repeated(300));
        QVERIFY(cut.at(cut.size() - 1).isLowSurrogate());
    }

    void privateFilesAreTheOwnersAlone()
    {
        QTemporaryDir folder;
        const QString runtime = folder.filePath("run"_s);
        QDir().mkpath(runtime);
        const QString data = folder.filePath("data"_s);
        const QFile::Permissions read = QFile::ReadOwner;
        const QFile::Permissions whole = read | QFile::WriteOwner | QFile::ExeOwner;
        for (const QString &place : {runtime, QString()}) {
            PrivateFiles files(PrivateFiles::places(place, data));
            const auto first = files.create("codes.txt"_s, produceSecret, files.wipes());
            const auto second = files.create("codes.txt"_s, produceSecret, files.wipes());
            QVERIFY(first && second && *first != *second);
            QVERIFY(first->startsWith(place.isEmpty() ? data : runtime));
            QVERIFY(first->endsWith("/codes.txt"_s));
            QCOMPARE(contentOf(*first), QByteArray("secret"));
            QCOMPARE(rightsOf(*first), read);
            const QString inner = QFileInfo(*first).path();
            QCOMPARE(rightsOf(inner), whole);
            QCOMPARE(rightsOf(QFileInfo(inner).path()), whole);
            QVERIFY(files.wipe());
            QCOMPARE(filesBelow(folder.path()), QStringList());
            QVERIFY(!QFile::exists(QFileInfo(inner).path()));
        }
    }

    void privateFilesOfAnEarlierRunAreWiped()
    {
        QTemporaryDir folder;
        const QString runtime = folder.filePath("run"_s);
        QDir().mkpath(runtime);
        const QStringList places = PrivateFiles::places(runtime, folder.path());
        const QString outside = folder.filePath("outside"_s);
        writeFile(outside, "kept");
        for (const QString &place : places) {
            const QString inner = place + "/0123"_s;
            QDir().mkpath(inner);
            writeFile(inner + "/left.txt"_s, "secret");
            QFile::setPermissions(inner + "/left.txt"_s, QFile::ReadOwner);
            QVERIFY(QFile::link(outside, inner + "/link"_s));
            // A second name of the file shows what becomes of its bytes.
            QCOMPARE(::link(qPrintable(inner + "/left.txt"_s), qPrintable(place + ".bytes"_s)), 0);
        }
        QVERIFY(PrivateFiles(places).wipe());
        for (const QString &place : places) {
            QVERIFY(!QFile::exists(place));
            QCOMPARE(contentOf(place + ".bytes"_s), QByteArray(6, '\0'));
        }
        QCOMPARE(contentOf(outside), QByteArray("kept"));
        // Not those of a program with other data.
        QVERIFY(PrivateFiles::places(runtime, "/other"_s).first() != places.first());
    }

    void aWipeStopsWhatWasAskedForBefore()
    {
        QTemporaryDir folder;
        PrivateFiles files(PrivateFiles::places({}, folder.path()));
        const auto late = [&files](QIODevice &device) {
            files.wipe();
            return produceSecret(device);
        };
        QVERIFY(!files.create("being written"_s, late, files.wipes()));
        QCOMPARE(filesBelow(folder.path()), QStringList());
        // A worker may come to it only then.
        const int wipes = files.wipes();
        files.wipe();
        QVERIFY(!files.create("waiting"_s, produceSecret, wipes));
        QCOMPARE(filesBelow(folder.path()), QStringList());
    }
};

QTEST_GUILESS_MAIN(TestAttachments)
#include "tst_attachments.moc"
