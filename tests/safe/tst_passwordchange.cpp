#include "../Text.h"
#include "FormerPassword.h"
#include "PMItemFactory.h"
#include "PasswordTesting.h"
#include "SafeCrypto.h"

#include <QLockFile>
#include <QProcess>
#include <QTemporaryDir>
#include <QtTest>

class TestPasswordChange : public QObject
{
    Q_OBJECT

private:
    std::unique_ptr<QTemporaryDir> m_temporary;
    QString m_folder;
    QMap<QString, QByteArray> m_before;

    /// Does something at a file operation of a change, and looks at what became of both.
    void interleave(const QString &action, int at)
    {
        auto files = std::make_shared<FaultyFiles>();
        SafeEnvironment environment;
        environment.files = files;
        GPMSafe safe(environment);
        QVERIFY(safe.open(m_folder) && safe.unlock(samplePassword));
        files->operations = 0;
        const QString loginId = "00000000-0000-0001-0000-000000001234"_s;
        const QString note = "written meanwhile"_s;
        QString added;
        const auto act = [&] {
            if (action == QLatin1String("cancel")) {
                safe.cancelPasswordChange();
            } else if (action == QLatin1String("lock")) {
                safe.item(loginId)->setNote(note);
                safe.lock();
            } else if (action == QLatin1String("add")) {
                added = safe.addItem(makeItem(PMListItem::Login))->id();
                safe.saveChangesAsync();
            } else if (action == QLatin1String("attach")) {
                safe.addAttachmentAsync(makeItem(PMListItem::Attachment), {{}, "some bytes"},
                                        loginId);
            } else if (action == QLatin1String("remove")) {
                QCOMPARE(safe.removeItems({loginId}), !safe.isChangingPassword());
            } else {
                safe.item(loginId)->setNote(note);
                if (action == QLatin1String("edit"))
                    safe.saveChangesAsync();
                else
                    QVERIFY(safe.saveChanges()); // as at the end of a session
            }
        };
        files->watch = [&](int operation) {
            if (operation == at)
                QMetaObject::invokeMethod(&safe, act, Qt::QueuedConnection);
        };
        const bool changed =
            changeOnWriter(safe, newPassword, safe.hint()) == PasswordChangeOutcome::Changed;
        // What is behind the change may come late: the first item is there without a save, too.
        QTRY_VERIFY(files->operations >= at);
        QCoreApplication::processEvents();
        const int items = action == QLatin1String("lock") ? itemCount : safe.itemCount();
        safe.lock();
        files->watch = {};

        const QString password = changed ? newPassword : samplePassword;
        GPMSafe after;
        QVERIFY(after.open(m_folder) && after.unlock(password));
        QVERIFY(after.unreadableFiles().isEmpty());
        if (action == QLatin1String("cancel")) {
            if (!changed)
                QCOMPARE(snapshot(m_folder), m_before);
            QVERIFY(opensWhole(m_folder, password));
        } else if (action == QLatin1String("add")) {
            QVERIFY(changed && after.item(added));
            QCOMPARE(after.itemCount(), itemCount + 1);
        } else if (action == QLatin1String("attach")) {
            QVERIFY(changed);
            const QStringList refs = after.item(loginId)->refs();
            QBuffer bytes;
            bytes.open(QIODevice::WriteOnly);
            QVERIFY(!refs.isEmpty() && after.readAttachment(refs.last(), bytes));
            QCOMPARE(bytes.data(), QByteArray("some bytes"));
        } else if (action == QLatin1String("remove")) {
            QVERIFY(changed);
            QCOMPARE(after.itemCount(), items);
        } else {
            QCOMPARE(after.item(loginId)->note(), note);
            QCOMPARE(after.itemCount(), itemCount);
        }
    }

private Q_SLOTS:
    void init()
    {
        m_temporary = std::make_unique<QTemporaryDir>();
        m_folder = m_temporary->path();
        copySampleSafe(m_folder);
        // Every failure point is a whole change: fewer items make more of them affordable.
        const QStringList kept = {"0001"_s, "0002"_s, "0003"_s, "0004"_s, "000b"_s, "0016"_s};
        const QDir content(m_folder + "/content"_s);
        for (const QString &file : content.entryList(QDir::Files)) {
            if (!kept.contains(file.mid(14, 4)))
                QVERIFY(QFile::remove(content.filePath(file)));
        }
        m_before = snapshot(m_folder);
    }

    void changesEveryFile()
    {
        QVERIFY(change(m_folder, std::make_shared<FaultyFiles>()).good);
        QVERIFY(opensWhole(m_folder, newPassword));
        QVERIFY(!opensWhole(m_folder, samplePassword));
        QMap<QString, QByteArray> after = snapshot(m_folder);
        QCOMPARE(after.take("safe.passid.bak"_s), m_before.value("safe.passid"_s));
        QCOMPARE(after.size(), m_before.size());
        for (const QByteArray &content : m_before) {
            if (content != m_before.value("safe.meta"_s))
                QVERIFY(!after.values().contains(content));
        }
        // Once more, to the next generation, with the first change's backup there.
        GPMSafe safe;
        QVERIFY(safe.open(m_folder) && safe.unlock(newPassword));
        QVERIFY(safe.changePassword(samplePassword));
        QVERIFY(opensWhole(m_folder, samplePassword));
    }

    /// A change that was done leaves a copy of the old pass id, too, and is no interrupted one; a
    /// file that is damaged later does not make it one.
    void aDoneChangeIsNotTakenForAnInterruptedOne()
    {
        QVERIFY(change(m_folder, std::make_shared<FaultyFiles>(), OnTheWriter).good);
        FileLayer files;
        const SafeFolder folder(m_folder);
        for (const bool damaged : {false, true}) {
            if (damaged)
                writeFile(m_folder + "/content/00000000-0000-0001-0000-000000001234.1"_s,
                          "damaged");
            QVERIFY(!tellsOfInterruption(m_folder, newPassword));
            QVERIFY(formerPassword(files, folder, samplePassword.toUtf8()) ==
                    FormerPassword::Former);
            QVERIFY(formerPassword(files, folder, "neither") == FormerPassword::No);
        }
    }

    void refusesBeforeItTouchesAnything()
    {
        GPMSafe safe;
        QVERIFY(safe.open(m_folder));
        QVERIFY(!safe.changePassword(newPassword)); // locked
        QVERIFY(safe.unlock(samplePassword));
        QVERIFY(!safe.changePassword(QString()));
        QCOMPARE(snapshot(m_folder), m_before);
    }

    /// Each file operation of the whole run fails once, and then with everything behind it.
    void everyFailureLeavesTheOldSafe()
    {
        const int operations = change(m_folder, std::make_shared<FaultyFiles>()).operations;
        const int writes = 2 + itemCount + 2; // pass id and its backup, items, attachments
        QVERIFY(operations >= writes);
        for (int failAt = 1; failAt <= writes; ++failAt) {
            for (const bool andAllBehind : {false, true}) {
                init();
                auto files = std::make_shared<FaultyFiles>();
                files->failAt = failAt;
                files->andAllBehind = andAllBehind;
                QVERIFY(!change(m_folder, files, andAllBehind ? OnTheWriter : AtOnce).good);
                QMap<QString, QByteArray> after = snapshot(m_folder);
                QCOMPARE(after.value("safe.passid"_s), m_before.value("safe.passid"_s));
                QVERIFY(opensWhole(m_folder, samplePassword));
                // Where nothing can be removed any more, what lies about must not do harm.
                if (!andAllBehind)
                    QCOMPARE(after, m_before);
            }
        }
        // Old files that cannot be removed are left behind; the new password is in force.
        for (int failAt = writes + 1; failAt <= operations; ++failAt) {
            init();
            auto files = std::make_shared<FaultyFiles>();
            files->failAt = failAt;
            QVERIFY(change(m_folder, files, OnTheWriter).good);
            QVERIFY(opensWhole(m_folder, newPassword));
        }
    }

    void aFailingRandomSourceLeavesTheOldSafe()
    {
        for (const int works : {0, 1, 2, 3, 12}) {
            std::atomic<int> left{works};
            const RandomSource random = [&left](unsigned char *buffer, int size) {
                return --left >= 0 && systemRandom(buffer, size);
            };
            QVERIFY(!change(m_folder, std::make_shared<FaultyFiles>(), AtOnce, random).good);
            QCOMPARE(snapshot(m_folder), m_before);
        }
    }

    void aDamagedItemStopsTheChange_data()
    {
        QTest::addColumn<QString>("file");
        QTest::addColumn<bool>("remove");
        QTest::newRow("attachment gone") << ("attachment/"_s + attachmentId) << true;
        QTest::newRow("attachment cut") << ("attachment/"_s + attachmentId) << false;
        QTest::newRow("item cut") << "content/00000000-0000-0001-0000-000000001234"_s << false;
    }
    void aDamagedItemStopsTheChange()
    {
        QFETCH(QString, file);
        QFETCH(bool, remove);
        const QString path = m_folder + QLatin1Char('/') + file;
        if (remove)
            QVERIFY(QFile::remove(path));
        else
            writeFile(path, contentOf(path).left(600));
        m_before = snapshot(m_folder);
        GPMSafe safe;
        QVERIFY(safe.open(m_folder) && safe.unlock(samplePassword));
        QVERIFY(!safe.changePassword(newPassword));
        QCOMPARE(snapshot(m_folder), m_before);
        safe.lock();
        QVERIFY(safe.unlock(samplePassword));
    }

    void aLockHeldByAnotherProcessStopsTheChange()
    {
        QProcess other;
        other.start(QCoreApplication::applicationFilePath(), {"--hold-lock"_s, m_folder});
        QVERIFY(other.waitForReadyRead());
        QMap<QString, QByteArray> held = snapshot(m_folder);
        QVERIFY(!change(m_folder, std::make_shared<FaultyFiles>()).good);
        QCOMPARE(snapshot(m_folder), held);
        other.kill();
        QVERIFY(other.waitForFinished());
        // What the dead process left is no obstacle.
        QVERIFY(change(m_folder, std::make_shared<FaultyFiles>()).good);
    }

    /// Something comes in between at each of the file operations, on the event loop.
    void whatComesInBetween_data()
    {
        QTest::addColumn<QString>("action");
        for (const char *action : {"cancel", "edit", "add", "attach", "remove", "lock", "save"})
            QTest::newRow(action) << QString::fromLatin1(action);
    }
    void whatComesInBetween()
    {
        QFETCH(QString, action);
        const int operations =
            change(m_folder, std::make_shared<FaultyFiles>(), OnTheWriter).operations;
        const int step = action == QLatin1String("cancel") ? 1 : 4;
        for (int at = 1; at <= operations; at += step) {
            init();
            interleave(action, at);
            if (QTest::currentTestFailed())
                return;
        }
    }

    /// Who locks does not wait for the rest of a large attachment.
    void aCancelledChangeStopsInsideAnAttachment()
    {
        const ItemFileName name{attachmentId, 0};
        const auto files = std::make_shared<CancellingFiles>();
        SafeEnvironment world;
        world.files = files;
        const auto secret = [](const QString &text) {
            return std::make_shared<const SecretBytes>(SecretBytes::fromText(text));
        };
        PasswordChange change({world,
                               SafeFolder(m_folder),
                               secret(samplePassword),
                               secret(newPassword),
                               std::make_shared<QMutex>(),
                               {},
                               {}});
        const QString file = SafeFolder(m_folder).contentPath(name);
        change.add({name, *readItemFile(*files, file, samplePassword.toUtf8()), true, 0, {}});
        QCOMPARE(change.run(files->control, [] { return true; }), PasswordChangeOutcome::Cancelled);
        QCOMPARE(files->written, 0);
        QCOMPARE(snapshot(m_folder), m_before);
    }

    /// The hint changes with the password and stays with the old one.
    void theHintGoesWithThePassword()
    {
        const QString hint = "Another hint"_s;
        // A description that cannot be written is the last that can go wrong.
        auto files = std::make_shared<FaultyFiles>();
        files->failPath = m_folder + "/safe.meta"_s;
        SafeEnvironment environment;
        environment.files = files;
        GPMSafe safe(environment);
        QVERIFY(safe.open(m_folder) && safe.unlock(samplePassword));
        const QString oldHint = safe.hint();
        QVERIFY(changeOnWriter(safe, newPassword, hint) == PasswordChangeOutcome::NotWritten);
        QCOMPARE(safe.hint(), oldHint);
        QMap<QString, QByteArray> after = snapshot(m_folder);
        QVERIFY(!after.take("safe.restore"_s).contains(hint.toUtf8()));
        m_before.remove("safe.restore"_s);
        QCOMPARE(after, m_before);

        files->failPath.clear();
        QVERIFY(changeOnWriter(safe, newPassword, hint) == PasswordChangeOutcome::Changed);
        safe.lock();
        GPMSafe other;
        QVERIFY(other.open(m_folder));
        QCOMPARE(other.hint(), hint);
        QVERIFY(opensWhole(m_folder, newPassword));
    }

    /// The wait for another program leaves the event loop alone and can be cancelled.
    void waitsForTheLockOffTheLoop()
    {
        QLockFile held(m_folder + "/.sourcelock"_s);
        QVERIFY(held.lock());
        SafeEnvironment environment;
        environment.lockWaitMs = 1000000;
        GPMSafe safe(environment);
        QVERIFY(safe.open(m_folder) && safe.unlock(samplePassword));
        QTimer::singleShot(300, &safe, &GPMSafe::cancelPasswordChange);
        QVERIFY(changeOnWriter(safe, newPassword, safe.hint()) == PasswordChangeOutcome::Cancelled);
        // Locking does not wait either.
        QVERIFY(safe.changePasswordAsync(newPassword, safe.hint()));
        QTimer::singleShot(300, &safe, &GPMSafe::lock);
        QTRY_VERIFY(!safe.isUnlocked());
        QVERIFY(opensWhole(m_folder, samplePassword));
        held.unlock();
        environment.lockWaitMs = 0;
        QLockFile again(m_folder + "/.sourcelock"_s);
        QVERIFY(again.lock());
        GPMSafe impatient(environment);
        QVERIFY(impatient.open(m_folder) && impatient.unlock(samplePassword));
        QVERIFY(changeOnWriter(impatient, newPassword, {}) == PasswordChangeOutcome::Busy);
    }

    /// A process that dies inside each of the operations leaves whole files, and one of the two
    /// passwords opens everything: the new one, or the old one once its pass id is put back.
    void aKilledProcessLeavesWholeFiles()
    {
        const int operations = change(m_folder, std::make_shared<FaultyFiles>()).operations;
        for (int dieAt = 1; dieAt <= operations; ++dieAt) {
            init();
            QProcess child;
            child.start(QCoreApplication::applicationFilePath(),
                        {"--change-and-die"_s, m_folder, QString::number(dieAt)});
            QVERIFY(child.waitForFinished());
            QCOMPARE(child.exitCode(), 9);

            QCOMPARE(contentOf(m_folder + "/safe.meta"_s), m_before.value("safe.meta"_s));
            const QString passId = QString::fromLatin1(contentOf(m_folder + "/safe.passid"_s));
            // Only what was interrupted is told of, and that always.
            const bool complete = opensWhole(m_folder, newPassword);
            const bool told = tellsOfInterruption(m_folder, newPassword);
            const bool old = checkPassId(samplePassword.toUtf8(), passId);
            QVERIFY(old || checkPassId(newPassword.toUtf8(), passId));
            if (old || complete) {
                QVERIFY(!told);
                QVERIFY(!old || opensWhole(m_folder, samplePassword));
                continue;
            }
            QVERIFY(told);
            FileLayer files;
            const SafeFolder folder(m_folder);
            QVERIFY(formerPassword(files, folder, samplePassword.toUtf8()) ==
                    FormerPassword::Interrupted);
            const QString backup = m_folder + "/safe.passid.bak"_s;
            writeFile(m_folder + "/safe.passid"_s, contentOf(backup));
            QVERIFY(opensWhole(m_folder, samplePassword));
        }
    }
};

int main(int argc, char **argv)
{
    QCoreApplication application(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    if (arguments.value(1) == QLatin1String("--hold-lock"))
        return holdLock(arguments.value(2));
    if (arguments.value(1) == QLatin1String("--change-and-die"))
        return changeAndDie(arguments.value(2), arguments.value(3).toInt());
    TestPasswordChange test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_passwordchange.moc"
