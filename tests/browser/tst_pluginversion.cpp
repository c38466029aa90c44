#include "../Text.h"
#include "PluginVersion.h"

#include <QTest>

class TestPluginVersion : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void warning_data()
    {
        QTest::addColumn<QString>("version");
        QTest::addColumn<QString>("bundleId");
        QTest::addColumn<bool>("warned");
        QTest::newRow("the oldest that works") << "1.0.1.26"
                                               << "glaceron.chrome" << false;
        QTest::newRow("one before") << "1.0.1.25"
                                    << "glaceron.chrome" << true;
        QTest::newRow("texts: 3 is above 26") << "1.0.1.3"
                                              << "glaceron.chrome" << false;
        QTest::newRow("texts: 100 is below 26") << "1.0.1.100"
                                                << "glaceron.chrome" << true;
        QTest::newRow("none") << ""
                              << "glaceron.chrome" << true;
        QTest::newRow("Firefox is not checked") << "0.1"
                                                << "glaceron.firefox" << false;
    }
    void warning()
    {
        QFETCH(QString, version);
        QFETCH(QString, bundleId);
        QFETCH(bool, warned);
        const QString text = "Invalid plugin version for Chrome extension: "_s + version;
        QCOMPARE(pluginVersionWarning(version, bundleId).value_or(QString()),
                 warned ? text : QString());
    }
};

QTEST_APPLESS_MAIN(TestPluginVersion)
#include "tst_pluginversion.moc"
