#pragma once

#include <orv/core/Export.h>
#include <orv/core/Result.h>

#include <QByteArray>
#include <QString>

#include <memory>

class KPropertySet;

namespace orv {

class XenosetPreset;

namespace PropertyEditor {
class Content;
class KeyValueItem;
} // namespace PropertyEditor

/// Writes the parameter files of the search engine, one for each sample, and reads them. The file has 90 keys
/// in a fixed order; reader and writer are no mirrors of each other (docs/formats.md):
/// \code
///     const KarvonPresetCreator creator(content, searchItem);
///     for (const QString &name : content.sampleNames())
///         store(name, creator.presetForSample(name, fastaPath));
/// \endcode
/// Samples should have absolute references: relative ones are taken from the current folder.
class ORV_WORKFLOW_EXPORT KarvonPresetCreator
{
public:
    /// Takes the samples of \a content and the settings of \a item over; neither is referred to afterwards.
    KarvonPresetCreator(const PropertyEditor::Content &content, const PropertyEditor::KeyValueItem &item);
    ~KarvonPresetCreator();
    Q_DISABLE_COPY_MOVE(KarvonPresetCreator)

    /// The whole file for the first sample of that name, in UTF-8. A sample that doesn't exist or whose file
    /// can't be had leaves the key SpectraFiles empty. Blocks while a file is fetched. Any number of threads
    /// may call at once, if the handlers of the samples' references allow it.
    [[nodiscard]] QByteArray presetForSample(const QString &sampleName, const QString &databasePath) const;

    /// The same for spectra at a local path that is known, empty for none.
    [[nodiscard]] QByteArray presetForSpectra(const QString &spectraFile, const QString &databasePath) const;

    /// The local file of the first sample of that name, fetched if need be. InvalidContent for a name that no
    /// sample has, otherwise as ResourceManager::getHandler and ResourceHandler::grab.
    [[nodiscard]] Result<QString> spectraFileOf(const QString &sampleName) const;

    /// The settings in a file, in the group "common" of a set that the caller owns. A setting whose key the
    /// file lacks has its default. Null, with a warning in the log, for a file that can't be read;
    /// XenosetPreset::fromFile tells why.
    [[nodiscard]] static KPropertySet *propertySetFromXenoset(const QString &path);
    /// The same of a file that is parsed already.
    [[nodiscard]] static KPropertySet *propertySetFromXenoset(const XenosetPreset &preset);

private:
    class Private;
    const std::unique_ptr<Private> d;
};

} // namespace orv
