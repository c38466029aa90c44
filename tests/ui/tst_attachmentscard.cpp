#include "MainDesk.h"
#include "PMAttachment.h"
#include "attachments/AttachmentActions.h"
#include "attachments/AttachmentPreview.h"
#include "main/ItemPane.h"

#include <QBuffer>
#include <QClipboard>
#include <QDropEvent>
#include <QMenu>
#include <QMimeData>
#include <QPlainTextEdit>

namespace {

/// A user before a main view that shows a login, with files of their own.
struct Desk : MainDesk
{
    Desk()
        : loginId(addAndChoose("Cloudmail"))
    {
        AttachmentChoosers choosers;
        choosers.filesToAttach = [this] { return chosen; };
        choosers.placeToSave = [this](const QString &name) {
            suggested = name;
            return place;
        };
        choosers.newName = [this](const QString &) { return newName; };
        choosers.openFile = [this](const QString &path) {
            opened = path;
            return true;
        };
        view->findChild<AttachmentActions *>()->setChoosers(choosers);
    }

    QString file(const char *name, const QByteArray &content = "content") const
    {
        return test.file(name, content);
    }
    QStringList rows() const
    {
        QStringList names;
        for (const QLabel *label : view->findChildren<QLabel *>("attachmentName"_s)) {
            if (label->isVisibleTo(view.get()))
                names.append(label->text());
        }
        return names;
    }
    QStringList refs() { return test.login(loginId)->refs(); }
    QByteArray bytesOf(const QString &id)
    {
        QBuffer buffer;
        buffer.open(QIODevice::WriteOnly);
        return safe().readAttachment(id, buffer) ? buffer.data() : QByteArray("unreadable");
    }

    /// Attaches by the button and waits until it is done.
    QString attach(const QString &path)
    {
        QSignalSpy done(&safe(), &GPMSafe::attachmentDone);
        chosen = QStringList{path};
        click("attachButton");
        if (done.isEmpty() && !done.wait(30000))
            qFatal("Nothing is attached");
        const QString id = done.first().first().toString();
        // The row comes with the next turn of the event loop.
        if (!QTest::qWaitFor([this, &id] { return rowOf(id) && rowOf(id)->isVisible(); }, 30000))
            qFatal("No row is shown");
        return id;
    }
    QWidget *rowOf(const QString &id)
    {
        const int index = refs().indexOf(id);
        const auto list = view->findChildren<QWidget *>("attachmentRow"_s);
        const bool busy = index >= 0 && index < list.size() &&
                          !find<QAbstractButton>(*list.at(index), "previewButton")->isEnabled();
        return index >= 0 && index < list.size() && !busy ? list.at(index) : nullptr;
    }
    void chooseFromMenu(const char *text)
    {
        QWidget *row = field<QWidget>("attachmentRow");
        QContextMenuEvent event(QContextMenuEvent::Keyboard, {});
        QCoreApplication::sendEvent(row, &event);
        for (QAction *action : find<QMenu>(*row, "attachmentMenu")->actions()) {
            if (action->text() == QLatin1String(text))
                action->trigger();
        }
    }
    bool drop(const QMimeData &data, Qt::DropActions offered = Qt::CopyAction | Qt::MoveAction)
    {
        QWidget *page = field<QWidget>("itemPage");
        QDragEnterEvent enter({50, 50}, offered, &data, Qt::LeftButton, {});
        QCoreApplication::sendEvent(page, &enter);
        if (!enter.isAccepted())
            return false;
        QDropEvent dropped({50, 50}, offered, &data, Qt::LeftButton, {});
        QCoreApplication::sendEvent(page, &dropped);
        // A file that is moved would be deleted by the other program.
        return dropped.isAccepted() && dropped.dropAction() == Qt::CopyAction;
    }
    AttachmentPreview *preview()
    {
        click("previewButton");
        AttachmentPreview *dialog = nullptr;
        const bool came = QTest::qWaitFor([&] {
            dialog = view->findChild<AttachmentPreview *>();
            return dialog != nullptr;
        });
        return came ? dialog : nullptr;
    }
    QString copiesTold() const
    {
        const auto *banner = field<QWidget>("copiesBanner");
        return banner->isVisible() ? find<QLabel>(*banner, "noticeHeading")->text() : QString();
    }

    QString loginId;
    QStringList chosen;
    QString place;
    QString suggested;
    QString newName;
    QString opened;
};

QByteArray contentOf(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("missing");
}

} // namespace

class TestAttachmentsCard : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { qRegisterMetaType<AttachmentFault>("AttachmentFault"); }

    void attachesByButton()
    {
        Desk desk;
        QVERIFY(desk.rows().isEmpty());
        const QString id = desk.attach(desk.file("codes.txt", QByteArray(4096, 'x')));
        QCOMPARE(desk.refs(), QStringList{id});
        QCOMPARE(desk.rows(), QStringList{"codes.txt"_s});
        QCOMPARE(desk.field<QLabel>("attachmentDetail")->text(), "4 KB · encrypted"_s);
        QCOMPARE(desk.bytesOf(id).size(), 4096);
        // The category has it as well.
        QCOMPARE(desk.safe().item(id)->type(), PMListItem::Attachment);

        desk.chosen.clear();
        desk.click("attachButton");
        QCOMPARE(desk.field<QLabel>("attachMessage")->text(), "Please choose a file"_s);
        QVERIFY(desk.asker.asked.isEmpty());
    }

    void faultsAreToldWhenNothingWaitsForIt_data()
    {
        QTest::addColumn<bool>("locks");
        QTest::newRow("during a drop") << false;
        QTest::newRow("while the safe locks") << true;
    }
    void faultsAreToldWhenNothingWaitsForIt()
    {
        QFETCH(bool, locks);
        Desk desk;
        QVERIFY(desk.test.core.saveCurrentSafe());
        QMimeData data;
        const QString path = desk.file("a.txt");
        data.setUrls({QUrl::fromLocalFile(locks ? path : path + ".gone"_s)});
        const QString place = desk.safe().folder();
        QVERIFY(QDir(place + "/attachment"_s).removeRecursively());
        QVERIFY(desk.drop(data));
        if (locks)
            desk.lock();
        // A question would hold up the other program's drag, or leave the safe open.
        QVERIFY(desk.asker.asked.isEmpty());
        QTRY_COMPARE(desk.asker.asked.size(), 1);
        QCOMPARE(desk.safe().isUnlocked(), !locks);
    }

    void dropsKeepTheirOrder()
    {
        Desk desk;
        QStringList names;
        for (int drop = 0; drop < 3; ++drop) {
            QMimeData data;
            QList<QUrl> urls;
            for (int i = 0; i < 3; ++i) {
                names.append("file %1-%2.bin"_s.arg(drop).arg(i));
                // The first are the largest, so that they would be overtaken.
                urls.append(QUrl::fromLocalFile(desk.file(
                    qPrintable(names.last()), QByteArray(900000 / (1 + drop * 3 + i), 'x'))));
            }
            data.setUrls(urls);
            QVERIFY(desk.drop(data));
        }
        QTRY_COMPARE(desk.refs().size(), 9);
        QTRY_COMPARE(desk.rows(), names);
        for (const QString &name : names)
            QVERIFY(QFile::exists(desk.test.folder.filePath(name)));
    }

    void takesOnlyFilesAndPictures()
    {
        Desk desk;
        QMimeData text;
        text.setText("text"_s);
        QVERIFY(!desk.drop(text));
        QMimeData remote;
        remote.setUrls({QUrl("https://site.example/picture.png"_s)});
        QVERIFY(!desk.drop(remote));
        // As a browser drags a picture.
        remote.setImageData(QImage(20, 10, QImage::Format_RGB32));
        QVERIFY(desk.drop(remote));
        QTRY_COMPARE(desk.refs().size(), 1);
        QVERIFY(desk.bytesOf(desk.refs().first()).startsWith("\x89PNG"));
        desk.test.core.modelItemDeleted(desk.loginId);
        QVERIFY(!desk.drop(remote));
    }

    void pastesFilesAndPictures()
    {
        Desk desk;
        auto *files = new QMimeData;
        files->setUrls(
            {QUrl::fromLocalFile(desk.file("a.txt")), QUrl::fromLocalFile(desk.file("b.txt"))});
        files->setImageData(QImage(20, 10, QImage::Format_RGB32));
        QApplication::clipboard()->setMimeData(files);
        desk.field<QListView>("itemList")->setFocus();
        desk.press(Qt::Key_V, Qt::ControlModifier);
        QTRY_COMPARE(desk.rows(), QStringList({"a.txt"_s, "b.txt"_s}));
        QImage picture(20, 10, QImage::Format_RGB32);
        picture.fill(Qt::green);
        QApplication::clipboard()->setImage(picture);
        desk.press(Qt::Key_V, Qt::ControlModifier);
        QTRY_COMPARE(desk.refs().size(), 3);
        QCOMPARE(QImage::fromData(desk.bytesOf(desk.refs().last()))
                     .convertToFormat(QImage::Format_RGB32),
                 picture);
        // Where text is typed, text is pasted.
        QApplication::clipboard()->setText("words"_s);
        desk.press(Qt::Key_V, Qt::ControlModifier);
        desk.press(Qt::Key_F, Qt::ControlModifier);
        desk.press(Qt::Key_V, Qt::ControlModifier);
        QCOMPARE(desk.typed("searchField"), "words"_s);
        QCOMPARE(desk.refs().size(), 3);
    }

    void tellsWhatIsNotTaken()
    {
        Desk desk;
        const QString limit = desk.file("limit.bin");
        QVERIFY(QFile::resize(limit, 10485760));
        const QString large = desk.file("large.bin");
        QVERIFY(QFile::resize(large, 10485761));
        QMimeData data;
        data.setUrls({QUrl::fromLocalFile(large), QUrl::fromLocalFile(desk.test.folder.path()),
                      QUrl::fromLocalFile(limit)});
        QVERIFY(desk.drop(data));
        QTRY_COMPARE(desk.asker.asked.size(), 1);
        const QStringList lines = desk.asker.asked.first().text.split(QLatin1Char('\n'));
        QCOMPARE(lines.size(), 2);
        QCOMPARE(lines.first(), "large.bin: Maximum attachment file size is 10 megabytes"_s);
        QTRY_COMPARE(desk.rows(), QStringList{"limit.bin"_s});
    }

    void hostileNamesAreShownPlain()
    {
        Desk desk;
        desk.attach(desk.file("invoice\u202Efdp.txt\u200b"));
        QCOMPARE(desk.rows(), QStringList{"invoicefdp.txt"_s});
        // A safe that came from elsewhere may hold any name.
        desk.safe()
            .item(desk.refs().first())
            ->setProperty("filename", "../../.config/autostart/x.desktop"_s);
        QTRY_COMPARE(desk.rows(), QStringList{"x.desktop"_s});
        desk.place.clear();
        desk.click("saveAttachmentButton");
        QCOMPARE(desk.suggested, "x.desktop"_s);
        desk.asker.answer = 1;
        desk.chooseFromMenu("Open in another program");
        QCOMPARE(desk.asker.asked.size(), 1);
        QCOMPARE(desk.asker.asked.first().buttons.first(), "Save as…"_s);
        QVERIFY(desk.opened.isEmpty());
    }

    void savesAs()
    {
        Desk desk;
        desk.attach(desk.file("codes.txt", "secret"));
        desk.place = desk.test.path("saved.txt");
        desk.click("saveAttachmentButton");
        QTRY_COMPARE(contentOf(desk.place), QByteArray("secret"));
        QCOMPARE(QFile::permissions(desk.place) & (QFile::ReadGroup | QFile::ReadOther),
                 QFile::Permissions());
        // What cannot be decrypted leaves what was there.
        QFile bytes(desk.safe().folder() + "/attachment/"_s + desk.refs().first());
        QVERIFY(bytes.resize(100));
        desk.click("saveAttachmentButton");
        QTRY_COMPARE(desk.asker.asked.size(), 1);
        QCOMPARE(contentOf(desk.place), QByteArray("secret"));
    }

    void renamesRemovesAndRestores()
    {
        Desk desk;
        const QString id = desk.attach(desk.file("codes.txt"));
        desk.newName = "a/b/new name.txt"_s;
        desk.field<QWidget>("previewButton")->setFocus();
        desk.press(Qt::Key_F2);
        QTRY_COMPARE(desk.rows(), QStringList{"new name.txt"_s});
        QCOMPARE(desk.safe().item(id)->title(), "new name.txt"_s);

        desk.click("removeAttachmentButton");
        QTRY_VERIFY(desk.rows().isEmpty());
        QVERIFY(desk.safe().item(id)->deleted());
        QCOMPARE(desk.refs(), QStringList{id});
        desk.test.core.modelItemRestored(id);
        QTRY_COMPARE(desk.rows(), QStringList{"new name.txt"_s});
    }

    void anAttachmentOfItsOwn()
    {
        Desk desk;
        auto *pane = desk.view->findChild<ItemPane *>();
        desk.chosen = QStringList{desk.file("plan.pdf")};
        pane->startNew(PMListItem::Attachment);
        QTRY_COMPARE(desk.rows(), QStringList{"plan.pdf"_s});
        QVERIFY(desk.refs().isEmpty());
        QVERIFY(pane->shownId() != desk.loginId);
        QVERIFY(!desk.field<QWidget>("attachButton")->isVisible());
        desk.chosen.clear();
        pane->startNew(PMListItem::Attachment);
        QCOMPARE(desk.asker.asked.last().text, "Please choose a file"_s);
    }

    void previewsTextAndPictures()
    {
        Desk desk;
        desk.attach(desk.file("note.txt", "one\r\ntwo"));
        AttachmentPreview *dialog = desk.preview();
        QVERIFY(dialog);
        auto *text = find<QPlainTextEdit>(*dialog, "previewText");
        QCOMPARE(text->toPlainText(), "one\ntwo"_s);
        QVERIFY(text->isReadOnly());
        // A lock closes it and what it showed.
        const QPointer<QWidget> shown(dialog);
        desk.lock();
        QTRY_VERIFY(!shown);
    }

    void opensElsewhereThroughAPrivateFile()
    {
        Desk desk;
        desk.attach(desk.file("codes.txt", "secret"));
        desk.chooseFromMenu("Open in another program");
        QTRY_VERIFY(!desk.opened.isEmpty());
        QCOMPARE(QFileInfo(desk.opened).fileName(), "codes.txt"_s);
        QCOMPARE(contentOf(desk.opened), QByteArray("secret"));
        QCOMPARE(desk.copiesTold(), "“codes.txt” is open in another program."_s);
        desk.click("removeCopiesButton");
        QVERIFY(!QFile::exists(desk.opened));
        QCOMPARE(desk.copiesTold(), QString());

        desk.opened.clear();
        desk.chooseFromMenu("Open in another program");
        QTRY_VERIFY(!desk.opened.isEmpty());
        desk.lock();
        QVERIFY(!QFile::exists(desk.opened));
        QCOMPARE(desk.copiesTold(), QString());
    }

    void aLockWhileACopyIsMadeLeavesNone()
    {
        Desk desk;
        desk.attach(desk.file("big.txt", QByteArray(5000000, 'x')));
        desk.chooseFromMenu("Open in another program");
        desk.lock();
        delete desk.view->findChild<AttachmentActions *>(); // waits for its workers
        QVERIFY(desk.opened.isEmpty());
        const QDir copies(desk.test.path("data/private"));
        QVERIFY(copies.entryList(QDir::AllEntries | QDir::NoDotAndDotDot).isEmpty());
    }
};

QTEST_MAIN(TestAttachmentsCard)
#include "tst_attachmentscard.moc"
