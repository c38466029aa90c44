#include "PMAttachment.h"
#include "UiTesting.h"
#include "attachments/AttachmentActions.h"
#include "attachments/AttachmentPreview.h"
#include "main/ItemPane.h"
#include "main/MainView.h"
#include "style/Theme.h"

#include <QBuffer>
#include <QClipboard>
#include <QDir>
#include <QDropEvent>
#include <QLabel>
#include <QLineEdit>
#include <QListView>
#include <QMenu>
#include <QMimeData>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QToolButton>

namespace {

/// A user before a main view that shows a login, with files of their own.
struct Desk
{
    Desk()
        : view(test.core, theme, asker.asker())
    {
        openWithSafe(view, test);
        loginId = test.addLogin(QStringLiteral("Cloudmail"));
        view.resize(1000, 680);
        view.show();
        view.activateWindow();
        if (!QTest::qWaitForWindowActive(&view))
            qFatal("The view got no keyboard");
        choose(QStringLiteral("Cloudmail"));

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
        view.findChild<AttachmentActions *>()->setChoosers(choosers);
    }

    void choose(const QString &title)
    {
        auto *list = find<QListView>(view, "itemList");
        for (int row = 0; row < list->model()->rowCount(); ++row) {
            const QModelIndex index = list->model()->index(row, 0);
            if (index.data().toString() == title)
                list->setCurrentIndex(index);
        }
    }

    QString file(const QString &name, const QByteArray &content = "content")
    {
        QFile made(test.folder.filePath(name));
        if (!made.open(QIODevice::WriteOnly) || made.write(content) != content.size())
            qFatal("No file to test with");
        return made.fileName();
    }

    QStringList rows() const
    {
        QStringList names;
        for (const QLabel *label : view.findChildren<QLabel *>(QStringLiteral("attachmentName"))) {
            if (label->isVisibleTo(&view))
                names.append(label->text());
        }
        return names;
    }
    QStringList refs() { return test.login(loginId)->refs(); }
    QByteArray bytesOf(const QString &id)
    {
        QBuffer buffer;
        buffer.open(QIODevice::WriteOnly);
        return test.core.currentSafe()->readAttachment(id, buffer) ? buffer.data()
                                                                   : QByteArray("unreadable");
    }

    /// Attaches by the button and waits until it is done.
    QString attach(const QString &path)
    {
        QSignalSpy done(test.core.currentSafe().get(), &GPMSafe::attachmentDone);
        chosen = QStringList{path};
        click("attachButton");
        if (done.isEmpty() && !done.wait())
            qFatal("Nothing is attached");
        const QString id = done.first().first().toString();
        // The row comes with the next turn of the event loop.
        if (!QTest::qWaitFor([this, &id] { return rowOf(id) && rowOf(id)->isVisible(); }))
            qFatal("No row is shown");
        return id;
    }
    QWidget *rowOf(const QString &id)
    {
        const int index = refs().indexOf(id);
        const auto list = view.findChildren<QWidget *>(QStringLiteral("attachmentRow"));
        const bool busy = index >= 0 && index < list.size() &&
                          !find<QAbstractButton>(*list.at(index), "previewButton")->isEnabled();
        return index >= 0 && index < list.size() && !busy ? list.at(index) : nullptr;
    }
    void click(const char *name) { find<QAbstractButton>(view, name)->click(); }
    void menu(const char *text)
    {
        QWidget *row = find<QWidget>(view, "attachmentRow");
        QContextMenuEvent event(QContextMenuEvent::Keyboard, {});
        QCoreApplication::sendEvent(row, &event);
        for (QAction *action : find<QMenu>(*row, "attachmentMenu")->actions()) {
            if (action->text() == QLatin1String(text))
                action->trigger();
        }
    }
    bool drop(const QMimeData &data, Qt::DropActions offered = Qt::CopyAction | Qt::MoveAction)
    {
        QWidget *page = find<QWidget>(view, "itemPage");
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
            dialog = view.findChild<AttachmentPreview *>();
            return dialog != nullptr;
        });
        return came ? dialog : nullptr;
    }
    QString copiesTold() const
    {
        const auto *banner = find<QWidget>(view, "copiesBanner");
        return banner->isVisible() ? find<QLabel>(*banner, "noticeHeading")->text() : QString();
    }

    TestCore test;
    Theme theme;
    TestAsker asker;
    MainView view;
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

QByteArray pictureBytes(const QSize &size, const char *format = "PNG")
{
    QImage image(size, QImage::Format_RGB32);
    image.fill(Qt::red);
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    image.save(&buffer, format);
    return bytes;
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
        const QString id =
            desk.attach(desk.file(QStringLiteral("codes.txt"), QByteArray(4096, 'x')));
        QCOMPARE(desk.refs(), QStringList{id});
        QCOMPARE(desk.rows(), QStringList{QStringLiteral("codes.txt")});
        QCOMPARE(find<QLabel>(desk.view, "attachmentDetail")->text(),
                 QStringLiteral("4 KB · encrypted"));
        QCOMPARE(desk.bytesOf(id).size(), 4096);
        // The category has it as well.
        QCOMPARE(desk.test.core.currentSafe()->item(id)->type(), PMListItem::Attachment);

        desk.chosen.clear();
        desk.click("attachButton");
        QCOMPARE(find<QLabel>(desk.view, "attachMessage")->text(),
                 QStringLiteral("Please choose a file"));
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
        const QString path = desk.file(QStringLiteral("a.txt"));
        data.setUrls({QUrl::fromLocalFile(locks ? path : path + QStringLiteral(".gone"))});
        const QString place = desk.test.core.currentSafe()->folder();
        QVERIFY(QDir(place + QStringLiteral("/attachment")).removeRecursively());
        QVERIFY(desk.drop(data));
        if (locks)
            desk.test.core.lockCurrentSafe();
        // A question would hold up the other program's drag, or leave the safe open.
        QVERIFY(desk.asker.asked.isEmpty());
        QTRY_COMPARE(desk.asker.asked.size(), 1);
        QCOMPARE(desk.test.core.currentSafe()->isUnlocked(), !locks);
    }

    void dropsKeepTheirOrder()
    {
        Desk desk;
        QStringList names;
        for (int drop = 0; drop < 3; ++drop) {
            QMimeData data;
            QList<QUrl> urls;
            for (int i = 0; i < 3; ++i) {
                names.append(QStringLiteral("file %1-%2.bin").arg(drop).arg(i));
                // The first are the largest, so that they would be overtaken.
                urls.append(QUrl::fromLocalFile(
                    desk.file(names.last(), QByteArray(900000 / (1 + drop * 3 + i), 'x'))));
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
        text.setText(QStringLiteral("text"));
        QVERIFY(!desk.drop(text));
        QMimeData remote;
        remote.setUrls({QUrl(QStringLiteral("https://site.example/picture.png"))});
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
        files->setUrls({QUrl::fromLocalFile(desk.file(QStringLiteral("a.txt"))),
                        QUrl::fromLocalFile(desk.file(QStringLiteral("b.txt")))});
        files->setImageData(QImage(20, 10, QImage::Format_RGB32));
        QApplication::clipboard()->setMimeData(files);
        find<QListView>(desk.view, "itemList")->setFocus();
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_V, Qt::ControlModifier);
        QTRY_COMPARE(desk.rows(), QStringList({QStringLiteral("a.txt"), QStringLiteral("b.txt")}));
        QImage picture(20, 10, QImage::Format_RGB32);
        picture.fill(Qt::green);
        QApplication::clipboard()->setImage(picture);
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_V, Qt::ControlModifier);
        QTRY_COMPARE(desk.refs().size(), 3);
        QCOMPARE(QImage::fromData(desk.bytesOf(desk.refs().last()))
                     .convertToFormat(QImage::Format_RGB32),
                 picture);
        // Where text is typed, text is pasted.
        QApplication::clipboard()->setText(QStringLiteral("words"));
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_V, Qt::ControlModifier);
        QTest::keyClick(&desk.view, Qt::Key_F, Qt::ControlModifier);
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_V, Qt::ControlModifier);
        QCOMPARE(find<QLineEdit>(desk.view, "searchField")->text(), QStringLiteral("words"));
        QCOMPARE(desk.refs().size(), 3);
    }

    void tellsWhatIsNotTaken()
    {
        Desk desk;
        const QString limit = desk.file(QStringLiteral("limit.bin"));
        QVERIFY(QFile::resize(limit, 10485760));
        const QString large = desk.file(QStringLiteral("large.bin"));
        QVERIFY(QFile::resize(large, 10485761));
        QMimeData data;
        data.setUrls({QUrl::fromLocalFile(large), QUrl::fromLocalFile(desk.test.folder.path()),
                      QUrl::fromLocalFile(limit)});
        QVERIFY(desk.drop(data));
        QTRY_COMPARE(desk.asker.asked.size(), 1);
        const QStringList lines = desk.asker.asked.first().text.split(QLatin1Char('\n'));
        QCOMPARE(lines.size(), 2);
        QCOMPARE(lines.first(),
                 QStringLiteral("large.bin: Maximum attachment file size is 10 megabytes"));
        QTRY_COMPARE(desk.rows(), QStringList{QStringLiteral("limit.bin")});
    }

    void hostileNamesAreShownPlain()
    {
        Desk desk;
        desk.attach(desk.file(QString::fromUtf8("invoice\u202Efdp.txt\u200b")));
        QCOMPARE(desk.rows(), QStringList{QStringLiteral("invoicefdp.txt")});
        // A safe that came from elsewhere may hold any name.
        desk.test.core.currentSafe()
            ->item(desk.refs().first())
            ->setProperty("filename", QStringLiteral("../../.config/autostart/x.desktop"));
        QTRY_COMPARE(desk.rows(), QStringList{QStringLiteral("x.desktop")});
        desk.place.clear();
        desk.click("saveAttachmentButton");
        QCOMPARE(desk.suggested, QStringLiteral("x.desktop"));
        desk.asker.answer = 1;
        desk.menu("Open in another program");
        QCOMPARE(desk.asker.asked.size(), 1);
        QCOMPARE(desk.asker.asked.first().buttons.first(), QStringLiteral("Save as…"));
        QVERIFY(desk.opened.isEmpty());
    }

    void savesAs()
    {
        Desk desk;
        desk.attach(desk.file(QStringLiteral("codes.txt"), "secret"));
        desk.place = desk.test.folder.filePath(QStringLiteral("saved.txt"));
        desk.click("saveAttachmentButton");
        QTRY_COMPARE(contentOf(desk.place), QByteArray("secret"));
        QCOMPARE(QFile::permissions(desk.place) & (QFile::ReadGroup | QFile::ReadOther),
                 QFile::Permissions());
        // What cannot be decrypted leaves what was there.
        QFile bytes(desk.test.core.currentSafe()->folder() + QStringLiteral("/attachment/") +
                    desk.refs().first());
        QVERIFY(bytes.resize(100));
        desk.click("saveAttachmentButton");
        QTRY_COMPARE(desk.asker.asked.size(), 1);
        QCOMPARE(contentOf(desk.place), QByteArray("secret"));
    }

    void renamesRemovesAndRestores()
    {
        Desk desk;
        const QString id = desk.attach(desk.file(QStringLiteral("codes.txt")));
        desk.newName = QStringLiteral("a/b/new name.txt");
        find<QWidget>(desk.view, "previewButton")->setFocus();
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_F2);
        QTRY_COMPARE(desk.rows(), QStringList{QStringLiteral("new name.txt")});
        QCOMPARE(desk.test.core.currentSafe()->item(id)->title(), QStringLiteral("new name.txt"));

        desk.click("removeAttachmentButton");
        QTRY_VERIFY(desk.rows().isEmpty());
        QVERIFY(desk.test.core.currentSafe()->item(id)->deleted());
        QCOMPARE(desk.refs(), QStringList{id});
        desk.test.core.modelItemRestored(id);
        QTRY_COMPARE(desk.rows(), QStringList{QStringLiteral("new name.txt")});
    }

    void anAttachmentOfItsOwn()
    {
        Desk desk;
        auto *pane = desk.view.findChild<ItemPane *>();
        desk.chosen = QStringList{desk.file(QStringLiteral("plan.pdf"))};
        pane->startNew(PMListItem::Attachment);
        QTRY_COMPARE(desk.rows(), QStringList{QStringLiteral("plan.pdf")});
        QVERIFY(desk.refs().isEmpty());
        QVERIFY(pane->shownId() != desk.loginId);
        QVERIFY(!find<QWidget>(desk.view, "attachButton")->isVisible());
        desk.chosen.clear();
        pane->startNew(PMListItem::Attachment);
        QCOMPARE(desk.asker.asked.last().text, QStringLiteral("Please choose a file"));
    }

    void previewsTextAndPictures()
    {
        Desk desk;
        desk.attach(desk.file(QStringLiteral("note.txt"), "one\r\ntwo"));
        AttachmentPreview *dialog = desk.preview();
        QVERIFY(dialog);
        auto *text = find<QPlainTextEdit>(*dialog, "previewText");
        QCOMPARE(text->toPlainText(), QStringLiteral("one\ntwo"));
        QVERIFY(text->isReadOnly());
        // A lock closes it and what it showed.
        const QPointer<QWidget> shown(dialog);
        desk.test.core.lockCurrentSafe();
        QTRY_VERIFY(!shown);
    }

    void opensElsewhereThroughAPrivateFile()
    {
        Desk desk;
        desk.attach(desk.file(QStringLiteral("codes.txt"), "secret"));
        desk.menu("Open in another program");
        QTRY_VERIFY(!desk.opened.isEmpty());
        QCOMPARE(QFileInfo(desk.opened).fileName(), QStringLiteral("codes.txt"));
        QCOMPARE(contentOf(desk.opened), QByteArray("secret"));
        QCOMPARE(desk.copiesTold(), QStringLiteral("“codes.txt” is open in another program."));
        desk.click("removeCopiesButton");
        QVERIFY(!QFile::exists(desk.opened));
        QCOMPARE(desk.copiesTold(), QString());

        desk.opened.clear();
        desk.menu("Open in another program");
        QTRY_VERIFY(!desk.opened.isEmpty());
        desk.test.core.lockCurrentSafe();
        QVERIFY(!QFile::exists(desk.opened));
        QCOMPARE(desk.copiesTold(), QString());
    }

    void aLockWhileACopyIsMadeLeavesNone()
    {
        Desk desk;
        desk.attach(desk.file(QStringLiteral("big.txt"), QByteArray(5000000, 'x')));
        desk.menu("Open in another program");
        desk.test.core.lockCurrentSafe();
        delete desk.view.findChild<AttachmentActions *>(); // waits for its workers
        QVERIFY(desk.opened.isEmpty());
        const QDir copies(desk.test.folder.filePath(QStringLiteral("data/private")));
        QVERIFY(copies.entryList(QDir::AllEntries | QDir::NoDotAndDotDot).isEmpty());
    }

    void contents_data()
    {
        QTest::addColumn<QByteArray>("bytes");
        QTest::addColumn<int>("kind");
        QTest::addColumn<QString>("text");
        const auto row = [](const char *name, const QByteArray &bytes, int kind,
                            const QString &text = {}) {
            QTest::newRow(name) << bytes << kind << text;
        };
        const QString word = QString::fromUtf8("Grüße €");
        row("empty", {}, PreviewContent::Text);
        row("UTF-8", word.toUtf8(), PreviewContent::Text, word);
        row("UTF-8 with mark", "\xef\xbb\xbf" + word.toUtf8(), PreviewContent::Text, word);
        row("UTF-16 LE", QByteArray("\xff\xfeG\0\xfc\0", 6), PreviewContent::Text,
            QString::fromUtf8("Gü"));
        row("UTF-16 BE", QByteArray("\xfe\xff\0G\0\xfc", 6), PreviewContent::Text,
            QString::fromUtf8("Gü"));
        row("Latin-1",
            "Gr\xfc\xdf"
            "e",
            PreviewContent::Text, QString::fromUtf8("Grüße"));
        row("binary", QByteArray("MZ\0\1\2", 5), PreviewContent::None);
        row("drawing", "<svg xmlns='http://www.w3.org/2000/svg'/>", PreviewContent::Text,
            QStringLiteral("<svg xmlns='http://www.w3.org/2000/svg'/>"));
        row("picture", pictureBytes({30, 20}), PreviewContent::Picture);
        row("jpeg", pictureBytes({30, 20}, "JPG"), PreviewContent::Picture);
        row("cut picture", pictureBytes({300, 200}).left(60), PreviewContent::None);
        QByteArray huge = pictureBytes({30, 20});
        // The size in the file's head: 60,000 by 60,000.
        huge.replace(16, 8, QByteArray("\0\0\xea\x60\0\0\xea\x60", 8));
        row("picture of gigabytes", huge, PreviewContent::None);
    }

    void contents()
    {
        QFETCH(QByteArray, bytes);
        const PreviewContent content = PreviewContent::of(bytes);
        QTEST(int(content.kind), "kind");
        QTEST(content.text, "text");
        QCOMPARE(content.kind == PreviewContent::Picture, !content.picture.isNull());
    }

    void contentsAreBounded()
    {
        const PreviewContent text = PreviewContent::of(QByteArray(5000000, 'x'));
        QVERIFY(text.cut);
        QVERIFY(text.text.size() < 300000);
        for (const QString &line : text.text.split(QLatin1Char('\n')))
            QVERIFY(line.size() <= 2000);
        const PreviewContent lines = PreviewContent::of(QByteArray("a\n").repeated(9000));
        QVERIFY(lines.cut);
        QCOMPARE(lines.text.count(QLatin1Char('\n')), 4999);
        const PreviewContent wide = PreviewContent::of(pictureBytes({9000, 30}));
        QCOMPARE(wide.pictureSize, QSize(9000, 30));
        QCOMPARE(wide.picture.width(), 4096);
    }
};

QTEST_MAIN(TestAttachmentsCard)
#include "tst_attachmentscard.moc"
