#pragma once

#include <orv/widgets/Export.h>

#include <QDialog>
#include <QJsonObject>

namespace orv {

/// Base of dialogs that edit one structured value. GUI thread.
class ORV_PROPERTY_EDITOR_EXPORT IGenericEditorDialog : public QDialog
{
    Q_OBJECT

public:
    explicit IGenericEditorDialog(QWidget *parent = nullptr, Qt::WindowFlags flags = {});
    ~IGenericEditorDialog() override;

    [[nodiscard]] virtual QJsonObject data() const = 0;
    virtual void setData(const QJsonObject &value) = 0;
};

} // namespace orv
