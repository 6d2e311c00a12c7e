#include "EngineFiles.h"
#include "OrvTest.h"

#include <orv/propertyeditor/PropertySetCreator.h>

using namespace orv;
using namespace orv::PropertyEditor;
using namespace EngineFiles;
using namespace Qt::StringLiterals;

namespace {

enum Reading
{
    NoSetting,     ///< the key comes from no setting
    ReadBack,      ///< what is read gives the same line again
    ReadAsAnother, ///< what is read gives another line, as the reader leaves marks of the file in it
    NotRead,       ///< the reader passes the key over
};

struct Row
{
    const char *key;
    int id;
    QString byDefault;
    QJsonValue stored; ///< in a document
    QString written;
    Reading reading;
};

/// All keys in the order of the file.
const QList<Row> &rows()
{
    static const QList<Row> all = {
        Row{"Custom_xlink", 38, u"0"_s, u"true"_s, u"1"_s, ReadBack},
        Row{"Custom_xlink_text", 39, u""_s, u"a\nb:c\\d"_s, u"a\\nb:c\\d"_s, ReadBack},
        Row{"DSS_xlink", 48, u"0"_s, u"true"_s, u"1"_s, ReadBack},
        Row{"DSS_xlink_text", 49,
            u"DSS / 138.0680796 @ K | xlink\\nXlink\\:DSS / 156.078644 @ K | common2 % Dead end"_s,
            u"a\nb:c\\d"_s, u"a\\nb:c\\d"_s, ReadBack},
        Row{"DatabaseFiles", -1, u""_s, QJsonValue(), u""_s, NoSetting},
        Row{"DebugMode", 40, u"0"_s, u"true"_s, u"1"_s, ReadBack},
        Row{"DebugText", 41, u""_s, u"a\nb:c\\d"_s, u"a\\nb:c\\d"_s, ReadBack},
        Row{"DigestCutterType", 42, u"0"_s, 1, u"1"_s, ReadBack},
        Row{"DigestLetters", 43, u"RK"_s, u"a\nb:c\\d"_s, u"a\\nb:c\\d"_s, ReadBack},
        Row{"DigestType", 44, u"2"_s, 4, u"4"_s, ReadBack},
        Row{"Disulfide", 45, u"0"_s, u"true"_s, u"1"_s, ReadBack},
        Row{"Disulfide_text", 47, u"Disulfide / -2.015650 @ C | xlink"_s, u"a\nb:c\\d"_s, u"a\\nb:c\\d"_s,
            ReadBack},
        Row{"OutputFolder", -1, u""_s, QJsonValue(), u""_s, NoSetting},
        Row{"PARAMETER_VERSION", -1, u"1.4.1"_s, QJsonValue(), u"1.4.1"_s, NoSetting},
        Row{"ProteomeDiscovererVersion", -1, u""_s, QJsonValue(), u""_s, NoSetting},
        Row{"SpectraFiles", -1, u""_s, QJsonValue(), u""_s, NoSetting},
        Row{"Trisulfide", 92, u"0"_s, u"true"_s, u"1"_s, ReadBack},
        Row{"Trisulfide_text", 93, u"Trisulfide / 29.956421 @ C | xlink"_s, u"a\nb:c\\d"_s, u"a\\nb:c\\d"_s,
            ReadBack},
        Row{"Wildcard", 94, u"0"_s, 1, u"1"_s, ReadBack},
        Row{"add_contaminants", 111, u"0"_s, u"true"_s, u"1"_s, ReadBack},
        Row{"add_decoys", 112, u"1"_s, u"false"_s, u"0"_s, ReadBack},
        Row{"apply_charges_index", 25, u"1"_s, 2, u"2"_s, ReadBack},
        Row{"apply_charges_text", 26, u""_s, u"a\nb:c\\d"_s, u"a\\nb:c\\d"_s, ReadBack},
        Row{"centroid_prefer_type", 28, u"2"_s, 0, u"0"_s, ReadBack},
        Row{"centroid_topk", 29, u"1000"_s, 1001, u"1001"_s, ReadBack},
        Row{"centroid_width_type", 30, u"0"_s, 1, u"1"_s, ReadBack},
        Row{"centroid_width_val", 31, u"0.01"_s, u"0.125"_s, u"0.125"_s, ReadBack},
        Row{"chunking_method", 32, u"0"_s, 2, u"2"_s, ReadBack},
        Row{"common_max", 287, u"2"_s, 3, u"3"_s, ReadBack},
        Row{"deisotoped_spectra_checkbox", -1, u"0"_s, QJsonValue(), u"0"_s, NoSetting},
        Row{"disulfide_protein_groups", 46, u"1"_s, u"a\nb:c\\d"_s, u"a\\nb:c\\d"_s, ReadBack},
        Row{"enable_promote_score_nglycan", 50, u"0"_s, u"true"_s, u"1"_s, ReadBack},
        Row{"export_mzIdentML_checkbox", 51, u"0"_s, u"true"_s, u"1"_s, ReadBack},
        Row{"extra_text", 52, u""_s, u"a\nb:c\\d"_s, u"a\\nb:c\\d"_s, ReadBack},
        Row{"features_text", 53, u""_s, u"a\nb:c\\d"_s, u"a\\nb:c\\d"_s, ReadBack},
        Row{"focused_database_checkbox", 54, u"0"_s, u"true"_s, u"1"_s, ReadBack},
        Row{"fragment_mass_error", 55, u"20"_s, QJsonObject{{u"value"_s, 0.5}, {u"unit"_s, u"Da"_s}},
            u"0.5"_s, ReadBack},
        Row{"fragment_mass_error2", 56, u"20"_s, QJsonObject{{u"value"_s, 0.5}, {u"unit"_s, u"Da"_s}},
            u"0.5"_s, ReadBack},
        Row{"fragment_ppm_hardcut", 57, u"0"_s, u"true"_s, u"1"_s, ReadBack},
        Row{"fragment_unit", 55, u"0"_s, QJsonObject{{u"value"_s, 0.5}, {u"unit"_s, u"Da"_s}}, u"1"_s,
            ReadBack},
        Row{"fragment_unit2", 56, u"0"_s, QJsonObject{{u"value"_s, 0.5}, {u"unit"_s, u"Da"_s}}, u"1"_s,
            ReadBack},
        Row{"glycan_text", 58, u""_s, QJsonObject{{u"glycans"_s, u"Hex(5)\n[C:\\db]"_s}},
            u"Hex(5)\\n[C\\:\\\\db]"_s, ReadBack},
        Row{"karvon_sqlite_enable", 37, u"1"_s, 0, u"0"_s, NotRead},
        Row{"kinclusion_filter", 59, u""_s,
            QJsonObject{{u"inclusion"_s, QJsonArray{QJsonObject{{u"mz"_s, 524.25}, {u"name"_s, u"A:B"_s}},
                                                    QJsonObject{{u"mz"_s, 740.5}}}}},
            u"524.25,,,,A\\:B\\n740.5"_s, ReadBack},
        Row{"lock_mass_list", 61, u"None"_s, u"445.120025"_s, u"445.120025"_s, ReadBack},
        Row{"machine_type", 62, u"peptide\\:HCD"_s, 5, u"DNA\\:HCD"_s, ReadBack},
        Row{"max_chunk_size", 63, u"2000"_s, 2001, u"2001"_s, ReadBack},
        Row{"max_precursors", 65, u"1"_s, 2, u"2"_s, ReadBack},
        Row{"maximum_missed_cleavages", 64, u"2"_s, 3, u"3"_s, ReadBack},
        Row{"min_chunk_size", 66, u"500"_s, 501, u"501"_s, ReadBack},
        Row{"mod_text", 67, u"\\nallowed_third_letters_in_nglycan_motif=ST\\n"_s,
            QJsonObject{{u"modifications"_s, u"Xlink:DSS / 1 @ K | common1"_s}},
            u"Xlink\\:DSS / 1 @ K | common1\\nallowed_third_letters_in_nglycan_motif=ST\\n"_s, ReadAsAnother},
        Row{"msconvert_filter", 69, u""_s, u"a\nb:c\\d"_s, u"a\\nb:c\\d"_s, ReadBack},
        Row{"n_glycan_checkbox", -1, u"0"_s, QJsonValue(), u"0"_s, NoSetting},
        Row{"nglycan_quick_reject_labile_scale", 71, u"0.01"_s, u"0.125"_s, u"0.125"_s, ReadBack},
        Row{"o_glycan_checkbox", -1, u"0"_s, QJsonValue(), u"0"_s, NoSetting},
        Row{"off_by_one", 72, u"3"_s, 0, u"0"_s, ReadBack},
        Row{"output_report", 73, u"0"_s, u"true"_s, u"1"_s, NotRead},
        Row{"output_results", 74, u"1"_s, u"false"_s, u"0"_s, NotRead},
        Row{"output_top_scores", 75, u"0"_s, u"true"_s, u"1"_s, NotRead},
        Row{"peak_filter_min_number", 76, u"0"_s, 1, u"1"_s, ReadBack},
        Row{"peak_filter_mz_tolerance", 77, u"0.02"_s, u"0.125"_s, u"0.125"_s, ReadBack},
        Row{"peak_filter_selected", 78, u""_s, QJsonObject{{u"peakfilter"_s, u"204.09\n366:1"_s}},
            u"204.09\\n366:1"_s, ReadAsAnother},
        Row{"precursor_assignments", 79, u"1"_s, 2, u"2"_s, ReadBack},
        Row{"precursor_mass_error", 80, u"10"_s, QJsonObject{{u"value"_s, 0.5}, {u"unit"_s, u"Da"_s}},
            u"0.5"_s, ReadBack},
        Row{"precursor_mass_max", 81, u"10000"_s, u"0.125"_s, u"0.125"_s, ReadBack},
        Row{"precursor_ppm_hardcut", 82, u"0"_s, u"true"_s, u"1"_s, ReadBack},
        Row{"precursor_unit", 80, u"0"_s, QJsonObject{{u"value"_s, 0.5}, {u"unit"_s, u"Da"_s}}, u"1"_s,
            ReadBack},
        Row{"protein_fdr_pulldown", 83, u"0"_s, 2, u"2"_s, ReadBack},
        Row{"quick_reject", 84, u"95"_s, u"0.125"_s, u"0.125"_s, ReadBack},
        Row{"quick_reject_wildcard", 85, u"99"_s, u"0.125"_s, u"0.125"_s, ReadBack},
        Row{"ralmix_auto_score", 33, u"1"_s, u"false"_s, u"0"_s, ReadBack},
        Row{"ralmix_extra_params", 34, u""_s, u"a\nb:c\\d"_s, u"a\\nb:c\\d"_s, ReadBack},
        Row{"ralmix_fdr", 35, u""_s, u"a\nb:c\\d"_s, u"a\\nb:c\\d"_s, ReadBack},
        Row{"ralmix_min_score", 36, u"0"_s, u"a\nb:c\\d"_s, u"a\\nb:c\\d"_s, ReadBack},
        Row{"ralmix_sqlite_enable", 37, u"1"_s, 0, u"0"_s, ReadBack},
        Row{"random_sample_size", 86, u"400"_s, u"0.125"_s, u"0.125"_s, ReadBack},
        Row{"rare_max", 288, u"1"_s, 2, u"2"_s, ReadBack},
        Row{"recal_coeffs", 87, u""_s, u"a\nb:c\\d"_s, u"a\\nb:c\\d"_s, ReadBack},
        Row{"recal_option", 88, u"0"_s, 1, u"1"_s, ReadBack},
        Row{"results_suffix", 89, u"[spec]_[date]_Karvon"_s, u"a\nb:c\\d"_s, u"a\\nb:c\\d"_s, NotRead},
        Row{"schema_version", 90, u"2"_s, 1, u"1"_s, ReadBack},
        Row{"score_version", 91, u"2"_s, 1, u"1"_s, ReadBack},
        Row{"skip_bad_spectra", -1, u"1"_s, QJsonValue(), u"1"_s, NoSetting},
        Row{"wildcard_delta", 95, u"0"_s, 1, u"1"_s, ReadBack},
        Row{"wildcard_max_mass", 96, u"100"_s, 101, u"101"_s, ReadBack},
        Row{"wildcard_min_mass", 97, u"-40"_s, -39, u"-39"_s, ReadBack},
        Row{"wildcard_residues", 98, u""_s, u"a\nb:c\\d"_s, u"a\\nb:c\\d"_s, ReadBack},
        Row{"xlink_decoys_checkbox", 99, u"0"_s, u"true"_s, u"1"_s, ReadBack},
        Row{"xlink_decoys_mass_offset", 100, u"11"_s, u"a\nb:c\\d"_s, u"a\\nb:c\\d"_s, ReadBack},
        Row{"xlink_details", 101, u""_s, u"a\nb:c\\d"_s, u"a\\nb:c\\d"_s, ReadBack},
    };
    return all;
}

void addRows()
{
    QTest::addColumn<int>("index");
    for (qsizetype i = 0; i < rows().size(); ++i)
        QTest::newRow(rows().at(i).key) << int(i);
}

} // namespace

/// Every key of the search engine's parameter file: its default, a set value, and what is read back.
class TestKarvonKeys : public OrvTest
{
    Q_OBJECT

private Q_SLOTS:
    void theFileHasAllKeysInOrder();
    void aKeyHasItsDefault_data() { addRows(); }
    void aKeyHasItsDefault();
    void aKeyHasTheValueOfItsSetting_data() { addRows(); }
    void aKeyHasTheValueOfItsSetting();
    void aKeyIsReadBack_data() { addRows(); }
    void aKeyIsReadBack();
    void aKeyThatIsMissingLeavesTheDefault_data() { addRows(); }
    void aKeyThatIsMissingLeavesTheDefault();
    void everySettingIsReadOnce();
};

void TestKarvonKeys::theFileHasAllKeysInOrder()
{
    QStringList keys;
    for (const auto &[key, value] : linesOf(fileOf(QJsonArray())))
        keys.append(key);
    QStringList expected;
    for (const Row &row : rows())
        expected.append(QString::fromLatin1(row.key));
    QCOMPARE(keys, expected);
    QCOMPARE(keys.size(), 90);
    QVERIFY(std::ranges::is_sorted(keys));
}

void TestKarvonKeys::aKeyHasItsDefault()
{
    QFETCH(int, index);
    const Row &row = rows().at(index);
    QCOMPARE(valuesOf(fileOf(QJsonArray())).value(QString::fromLatin1(row.key), u"no line"_s), row.byDefault);
}

void TestKarvonKeys::aKeyHasTheValueOfItsSetting()
{
    QFETCH(int, index);
    const Row &row = rows().at(index);
    const QJsonArray entries = row.id < 0 ? QJsonArray() : QJsonArray{entry(row.id, row.stored)};
    QCOMPARE(valuesOf(fileOf(entries)).value(QString::fromLatin1(row.key), u"no line"_s), row.written);
    QVERIFY(row.id < 0 || row.written != row.byDefault || row.reading == NoSetting);
}

void TestKarvonKeys::aKeyIsReadBack()
{
    QFETCH(int, index);
    const Row &row = rows().at(index);
    if (row.id < 0)
        return;
    const QByteArray file = fileOf({entry(row.id, row.stored)});
    const auto set = read(file);
    QVERIFY(set);
    if (row.reading == NotRead) {
        QTest::ignoreMessage(QtWarningMsg, "The search engine has no machine type \"\"");
        QTest::ignoreMessage(QtWarningMsg, "The search engine has no machine type \"\"");
        const auto alone = read(row.key + "="_ba + row.written.toUtf8());
        const auto none = read("other=");
        QCOMPARE(alone->contains(nameOf(row.id).toUtf8()), none->contains(nameOf(row.id).toUtf8()));
        QCOMPARE(valueIn(*alone, row.id), valueIn(*none, row.id));
        return;
    }
    const auto item = search({entry(row.id, row.stored)});
    QVERIFY(item->setValue(PropertyId(row.id), valueIn(*set, row.id)));
    if (row.id == 78) {
        QTest::ignoreMessage(QtWarningMsg,
                             "The value is no JSON object and is left out: \"KarvonPeakFilterSelected\"");
    }
    const QString again = valuesOf(fileOf(*item)).value(QString::fromLatin1(row.key));
    QCOMPARE(again == row.written, row.reading == ReadBack);
}

/// But for those that are read whether or not the key is there.
void TestKarvonKeys::aKeyThatIsMissingLeavesTheDefault()
{
    QFETCH(int, index);
    const Row &row = rows().at(index);
    if (row.id < 0 || row.reading == NotRead)
        return;
    const std::unique_ptr<KProperty> byDefault(
        PropertySetCreator::createDefaultProperty(PropertyId(row.id), PropertySetCreator::Priority::Unset));
    QTest::ignoreMessage(QtWarningMsg, "The search engine has no machine type \"\"");
    const bool isReadAnyway = QList<int>{55, 56, 58, 59, 62, 67, 80}.contains(row.id);
    const auto set = read("other=");
    QCOMPARE(valueIn(*set, row.id) == byDefault->value(), !isReadAnyway);
}

void TestKarvonKeys::everySettingIsReadOnce()
{
    const auto set = read(fileOf(QJsonArray()));
    QVERIFY(set);
    QCOMPARE(set->count(), 74);
    QList<int> ids;
    for (KPropertySetIterator it(*set); it.current(); ++it) {
        ids.append(int(PropertiesNames::findPropertyForName(QString::fromUtf8(it.current()->name()))));
        QCOMPARE(set->groupNameForProperty(*it.current()), "common"_ba);
    }
    QVERIFY(std::ranges::is_sorted(ids));
    for (const int unread : {73, 74, 75, 89, 68, 60, 27})
        QVERIFY(!ids.contains(unread));
    QVERIFY(ids.contains(70));
}

ORV_REGISTER_TEST(TestKarvonKeys)

#include "TestKarvonKeys.moc"
