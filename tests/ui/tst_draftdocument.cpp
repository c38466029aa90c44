#include "../Text.h"
#include "PMFieldTypes.h"
#include "PMItemFactory.h"
#include "drafts/DraftDocument.h"
#include "editor/ItemDraft.h"
#include "main/ItemFields.h"

#include <QtTest>

class TestDraftDocument : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void everyKindGoesThroughTheEditorsDraft_data()
    {
        QTest::addColumn<int>("type");
        for (int type = PMListItem::Login; type < PMListItem::UndefinedItem; ++type)
            QTest::addRow("kind %d", type) << type;
    }
    void everyKindGoesThroughTheEditorsDraft()
    {
        QFETCH(int, type);
        PMFieldTypes::registerMetaTypes();
        const auto kind = static_cast<PMListItem::Type>(type);
        const auto item = makeItem(kind);
        ItemDraft edited(*item, itemFields(kind), true);
        int unfinished = 0;
        for (const ItemField &field : edited.fields()) {
            QVariant value = edited.value(field.property);
            if (value.type() == QVariant::String)
                value = "typed in %1"_s.arg(QLatin1String(field.property));
            else if (value.type() == QVariant::Int)
                value = 2;
            else if (value.userType() == qMetaTypeId<PMFieldTypes::Phone>())
                value = QVariant::fromValue(PMFieldTypes::Phone{"49"_s, "30"_s});
            else if (value.userType() == qMetaTypeId<PMFieldTypes::Date>())
                // Of two dates one is not finished.
                value = ++unfinished % 2 == 1 ? QVariant("29.0"_s)
                                              : QVariant::fromValue(PMFieldTypes::Date{2030, 2, 3});
            edited.setValue(field.property, value);
        }
        const KeptDraft kept = keptDraft(*item, edited);
        QVERIFY(kept.isNew);
        QVERIFY(!holdsDraft(*item, kept));
        // Through the text of the file.
        const auto json = kept.document.toJson({});
        KeptDraft read;
        read.document = *PMItemDocument::fromJson(*json, {});
        ItemDraft restored(*makeItem(kind), itemFields(kind), true);
        restoreDraft(restored, read);
        for (const ItemField &field : edited.fields()) {
            const QVariant before = edited.value(field.property);
            const QVariant after = restored.value(field.property);
            const bool same = before.userType() == after.userType() &&
                              (before == after || before.value<PMFieldTypes::Date>() ==
                                                      after.value<PMFieldTypes::Date>());
            if (before.userType() == qMetaTypeId<PMFieldTypes::Phone>())
                QCOMPARE(after.value<PMFieldTypes::Phone>(), before.value<PMFieldTypes::Phone>());
            else
                QVERIFY2(same, field.property);
        }
    }
};

QTEST_GUILESS_MAIN(TestDraftDocument)
#include "tst_draftdocument.moc"
