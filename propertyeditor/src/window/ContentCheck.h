#pragma once

#include <orv/propertyeditor/content/Content.h>

#include <QJsonObject>
#include <QList>
#include <QString>
#include <QUrl>

#include <memory>
#include <vector>

namespace orv {

namespace PropertyEditor {
class AbstractValidator;
} // namespace PropertyEditor

/// The check of a workflow before it is used. The library's own validators run on any thread, as servers and
/// slow disks may keep them waiting; those of the application run on the thread of the windows.
class ContentCheck
{
public:
    ContentCheck(const QJsonObject &document, const QUrl &baseUrl)
        : m_document(document)
        , m_baseUrl(baseUrl)
    {}

    void runDefaultValidators();
    void runValidators(std::vector<std::unique_ptr<PropertyEditor::AbstractValidator>> validators);

    [[nodiscard]] bool isValid() const { return m_isValid; }
    /// Each text once, in the order of the validators.
    [[nodiscard]] const QList<QString> &warnings() const { return m_warnings; }
    [[nodiscard]] const QList<QString> &errors() const { return m_errors; }

private:
    template<class Install>
    void run(const Install &install);

    QJsonObject m_document;
    QUrl m_baseUrl;
    bool m_isValid = true;
    QList<QString> m_warnings;
    QList<QString> m_errors;
};

} // namespace orv
