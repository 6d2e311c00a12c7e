#pragma once

#include <orv/core/Export.h>
#include <orv/core/Result.h>
#include <orv/propertyeditor/PropertyId.h>

#include <QByteArray>
#include <QMultiMap>
#include <QString>
#include <QVariant>

namespace orv {

/// The parameter file of the preview engine (`.prv`) in three forms: the text of the file, Content with what
/// a file says, and MirelProperties with what a workflow says. The defaults of the last two differ. Plain
/// values.
class ORV_WORKFLOW_EXPORT PreviewPreset
{
public:
    struct Content;

    /// The settings of a preview as properties; it knows no paths. What the numbers mean stands in the
    /// catalogue.
    struct ORV_WORKFLOW_EXPORT MirelProperties
    {
        QString cysMod;
        QString lysMod;
        QString argMod;
        QString nTermMod;
        QString cTermMod;
        QString digestLetters;
        qint32 digestSide = 0;
        qint32 fragType = 0;
        qint32 digestType = 2;
        bool phosphoSearch = false;
        bool wildcard = false;
        bool allCharges = false;

        /// The fields by name; the paths are dropped.
        [[nodiscard]] static MirelProperties fromPreviewPreset(const Content &content);
        /// A property that \a map lacks reads as an empty text, 0 or false, not as the default.
        [[nodiscard]] static MirelProperties fromPropertiesMap(const QMultiMap<PropertyId, QVariant> &map);
        /// 12 entries, each with a value of the field's type.
        [[nodiscard]] QMultiMap<PropertyId, QVariant> toPropertiesMap() const;

        bool operator==(const MirelProperties &) const = default;
    };

    /// What a file says, with its paths. -1 stands for a number that it doesn't tell.
    struct ORV_WORKFLOW_EXPORT Content
    {
        /// Any other value writes no head.
        enum ConvertMode : int
        {
            WithHeader = 0,
            WithoutHeader = 1,
        };

        /// Longest file in bytes.
        static constexpr qint64 kMaximumSize = qint64(16) * 1024 * 1024;

        QString databaseFiles;
        QString spectraFiles;
        QString outputFolder;
        QString argMod;
        QString cTermMod;
        QString cysMod;
        QString lysMod;
        QString nTermMod;
        QString digestLetters;
        bool wildcard = false;
        bool phosphoSearch = false;
        bool allCharges = false;
        qint32 fragType = -1;
        qint32 digestSide = -1;
        qint32 digestType = -1;

        [[nodiscard]] static Content fromMirelProperties(const QString &spectraFiles,
                                                         const QString &databaseFiles,
                                                         const QString &outputFolder,
                                                         const MirelProperties &properties);

        /// Fails with CannotOpenFile and "Cannot open file: %1" for a file that can't be read or is longer
        /// than kMaximumSize.
        [[nodiscard]] static Result<Content> fromPreviewPresetFile(const QString &path);
        /// The same of the text in a file, of which nothing is refused: other lines and keys are passed over,
        /// and a value that is no number reads as 0.
        [[nodiscard]] static Content fromFileContent(const QByteArray &text);
        /// Whether a line of \a text begins with a key of the format and "=": any other text isn't such a
        /// file.
        [[nodiscard]] static bool isFileContent(const QByteArray &text);

        /// 20 lines, below the name of the format and the time. Values aren't escaped: a line break in one
        /// ends its line.
        [[nodiscard]] QString convertToFileContent(ConvertMode mode) const;

        bool operator==(const Content &) const = default;
    };

    /// The text of a file with its head.
    [[nodiscard]] static QString createPresetContentFromWorkflow(const QString &spectraFiles,
                                                                 const QString &databaseFiles,
                                                                 const QString &outputFolder,
                                                                 const MirelProperties &properties);
};

} // namespace orv
