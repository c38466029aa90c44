// Reads documents as the extension reports them, one a line, and writes for each what its fields
// receive in every action: {"<opid>": {"login": "username", ...}}. For tests/browser/forms/.

#include "FormAnalysis.h"

#include <QHash>
#include <QJsonArray>
#include <QJsonDocument>

#include <cstdio>
#include <iostream>
#include <string>

namespace {

QString nameOf(FieldKind kind)
{
    static const QHash<int, QString> names = [] {
        const QStringList list =
            QStringLiteral(
                "unknown never other bank username password new-password cc-first cc-last "
                "cc-name cc-number cc-csc cc-month cc-year cc-exp cc-type first last middle name "
                "country state city line1 line2 house zip email tel tel-code tel-local tel-area "
                "tel-prefix tel-line "
                "bday bday-day bday-month bday-year sex company job site")
                .split(QLatin1Char(' '));
        QHash<int, QString> byKind;
        for (int i = 0; i < list.size(); ++i)
            byKind.insert(i, list.at(i));
        return byKind;
    }();
    return names.value(static_cast<int>(kind), QStringLiteral("vague"));
}

void readGroup(const QJsonObject &form, const QJsonValue &list, const QJsonObject &page,
               QJsonObject &answer)
{
    static const QVector<QPair<QString, FillAction>> actions = {
        {QStringLiteral("login"), FillAction::Login},
        {QStringLiteral("place"), FillAction::PlacePassword},
        {QStringLiteral("card"), FillAction::CreditCard},
        {QStringLiteral("identity"), FillAction::Identity}};
    QVector<FormField> fields;
    const QJsonArray entries = list.toArray();
    for (const QJsonValue &entry : entries)
        fields.append(FormField(entry.toObject()));
    const FormSurroundings around = FormSurroundings::of(form, page);
    for (const auto &action : actions) {
        const QVector<FieldKind> kinds = analyseForm(fields, around, action.second);
        for (int i = 0; i < fields.size(); ++i) {
            QJsonObject told = answer.value(fields.at(i).opid()).toObject();
            if (kinds.at(i) != FieldKind::Unknown)
                told.insert(action.first, nameOf(kinds.at(i)));
            answer.insert(fields.at(i).opid(), told);
        }
    }
    const QVector<FieldKind> read = readForm(fields, around);
    for (int i = 0; i < fields.size(); ++i) {
        QJsonObject told = answer.value(fields.at(i).opid()).toObject();
        told.insert(QStringLiteral("read"), nameOf(read.at(i)));
        answer.insert(fields.at(i).opid(), told);
    }
}

} // namespace

int main()
{
    std::string line;
    while (std::getline(std::cin, line)) {
        const QJsonObject page = QJsonDocument::fromJson(QByteArray::fromStdString(line)).object();
        QJsonObject answer;
        const QJsonArray forms = page.value(QLatin1String("forms")).toArray();
        for (const QJsonValue &form : forms)
            readGroup(form.toObject(), form[QLatin1String("fields")], page, answer);
        const QJsonValue loose = page.value(QLatin1String("elements"));
        readGroup({{QStringLiteral("fields"), loose}}, loose, page, answer);
        const QByteArray text = QJsonDocument(answer).toJson(QJsonDocument::Compact);
        std::puts(text.constData());
    }
    return 0;
}
