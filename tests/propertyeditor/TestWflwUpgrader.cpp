#include "Documents.h"
#include "OrvTest.h"

#include <orv/propertyeditor/workflow/WflwMetaData.h>
#include <orv/propertyeditor/workflow/WflwUpgrader.h>

#include <QVersionNumber>

using namespace orv;

namespace {

QJsonObject documentOf(const QString &version)
{
    return Documents::document({Documents::tab(QStringLiteral("Steps"), {QStringLiteral("Intact")},
                                               {Documents::cell(QStringLiteral("Intact"))})},
                               {{QStringLiteral("version"), version}});
}

QString versionOf(const PropertyEditorContent &document)
{
    return WflwMetaData::versionFromMetaDataObject(document.metadata());
}

} // namespace

class TestWflwUpgrader : public OrvTest
{
    Q_OBJECT

private Q_SLOTS:
    void leavesADocumentOfTheCurrentVersionAlone()
    {
        PropertyEditorContent document(documentOf(QStringLiteral("5.47.0")));
        QList<QString> notes{QStringLiteral("kept")};
        ORV_VERIFY_OK(WflwUpgrader::upgradeWorkflow(QVersionNumber(5, 47, 0), &document, &notes, true));
        QCOMPARE(notes, QList<QString>{QStringLiteral("kept")});
        QVERIFY(!document.metadata().contains(QStringLiteral("user")));
    }

    void changesNothingOfANewerPatch()
    {
        PropertyEditorContent document(documentOf(QStringLiteral("5.47.1")));
        QList<QString> notes{QStringLiteral("replaced")};
        ORV_VERIFY_OK(WflwUpgrader::upgradeWorkflow(QVersionNumber(5, 47, 1), &document, &notes, true));
        QCOMPARE(versionOf(document), QStringLiteral("5.47.1"));
        QVERIFY(notes.isEmpty());
    }

    void endsAtTheCurrentVersionEvenIfNoStepApplies()
    {
        for (const auto &version : {QStringLiteral("5.44.0"), QStringLiteral("5.47")}) {
            PropertyEditorContent document(documentOf(version));
            ORV_VERIFY_OK(WflwUpgrader::upgradeWorkflow(QVersionNumber::fromString(version), &document,
                                                        nullptr, false));
            QCOMPARE(versionOf(document), QStringLiteral("5.47.0"));
        }
    }
};

ORV_REGISTER_TEST(TestWflwUpgrader)
#include "TestWflwUpgrader.moc"
