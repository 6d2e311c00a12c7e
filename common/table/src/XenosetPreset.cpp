#include "orv/table/XenosetPreset.h"

#include <orv/core/FileUtils.h>
#include <orv/core/Logging.h>

#include <QCoreApplication>
#include <QStringDecoder>

namespace orv {

namespace {

constexpr QByteArrayView kPresetByteOrderMark("\xEF\xBB\xBF");

struct XenosetPresetTr
{
    Q_DECLARE_TR_FUNCTIONS(XenosetPreset)
};

Error refused(qsizetype line, const QString &reason, const QString &remedy)
{
    return Error(ErrorCode::InvalidContent,
                 XenosetPresetTr::tr("The text is no parameter file of the search engine."))
        .addDetail(XenosetPresetTr::tr("Line %1: %2").arg(line).arg(reason))
        .addDetail(remedy);
}

Result<QString> decoded(QByteArrayView bytes, qsizetype line)
{
    if (bytes.contains('\0')) {
        return refused(line, XenosetPresetTr::tr("it holds a zero byte."),
                       XenosetPresetTr::tr("The file is binary or in UTF-16; save it as UTF-8 text."));
    }
    QStringDecoder decoder(QStringDecoder::Utf8,
                           QStringDecoder::Flag::Stateless | QStringDecoder::Flag::ConvertInitialBom);
    QString text = decoder(bytes);
    if (decoder.hasError())
        return refused(line, XenosetPresetTr::tr("it is no UTF-8 text."),
                       XenosetPresetTr::tr("Save the file as UTF-8 text."));
    return text;
}

} // namespace

bool XenosetPreset::load(const QString &path)
{
    Result<XenosetPreset> preset = fromFile(path);
    if (preset.hasError()) {
        (void)preset.ecatch();
        *this = {};
        return false;
    }
    *this = std::move(preset).value();
    return true;
}

Result<XenosetPreset> XenosetPreset::fromFile(const QString &path)
{
    const Result<QByteArray> bytes = FileUtils::readFile(path, kMaximumSize);
    if (bytes.hasError())
        return Error(bytes.error()).ecatch();
    Result<XenosetPreset> preset = fromText(*bytes);
    if (preset.hasError())
        return preset.ecatch();
    return preset;
}

Result<XenosetPreset> XenosetPreset::fromText(const QByteArray &text)
{
    XenosetPreset preset;
    QString repeated;
    QByteArrayView rest(text);
    if (rest.startsWith(kPresetByteOrderMark))
        rest = rest.sliced(kPresetByteOrderMark.size());
    for (qsizetype line = 1; !rest.isEmpty(); ++line) {
        const qsizetype end = rest.indexOf('\n');
        QByteArrayView bytes = end < 0 ? rest : rest.first(end);
        rest = end < 0 ? QByteArrayView() : rest.sliced(end + 1);
        if (bytes.endsWith('\r'))
            bytes.chop(1);
        const Result<QString> decodedLine = decoded(bytes, line);
        if (decodedLine.hasError())
            return decodedLine.error();
        const qsizetype sign = decodedLine->indexOf(QLatin1Char('='));
        const QString key = decodedLine->first(qMax<qsizetype>(sign, 0)).trimmed();
        if (key.isEmpty() || key.startsWith(QLatin1Char('#')))
            continue;
        if (preset.m_attributes.contains(key))
            repeated = key;
        else if (preset.m_keys.size() == kMaximumKeys)
            return refused(line, XenosetPresetTr::tr("there are more than %1 keys.").arg(kMaximumKeys),
                           XenosetPresetTr::tr("Name a parameter file of the search engine."));
        else
            preset.m_keys.append(key);
        preset.m_attributes.insert(key, decodedLine->sliced(sign + 1));
    }
    if (!repeated.isNull())
        qCWarning(genericLog()) << "A key stands twice in the parameter file, the last line counts:"
                                << repeated;
    return preset;
}

QString XenosetPreset::attribute(const QString &key) const
{
    return m_attributes.value(key);
}

} // namespace orv
