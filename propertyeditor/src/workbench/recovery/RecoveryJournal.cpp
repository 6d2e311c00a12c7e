#include "orv/propertyeditor/workbench/RecoveryJournal.h"

#include "RecoveryWriter.h"

#include <QThreadPool>

namespace orv {

RecoveryJournal::RecoveryJournal(std::shared_ptr<RecoveryWriter> writer, std::shared_ptr<QThreadPool> pool)
    : m_pool(std::move(pool))
    , m_writer(std::move(writer))
{
    m_writer->setListener(this);
}

RecoveryJournal::~RecoveryJournal()
{
    m_writer->setListener(nullptr);
    m_writer->finish();
}

void RecoveryJournal::begin(const QString &file, const QJsonObject &base)
{
    m_writer->begin(file, base);
}

void RecoveryJournal::write(const PropertyEditorContent &state, const QStringList &lost)
{
    m_writer->write(state, lost);
}

void RecoveryJournal::goOn(const QJsonObject &base)
{
    m_writer->goOn(base);
}

QString RecoveryJournal::path() const
{
    return m_writer->path();
}

void RecoveryJournal::tell(const Error &error)
{
    if (!error.hasError()) {
        m_hasFailed = false;
        Q_EMIT written();
    } else if (!std::exchange(m_hasFailed, true)) {
        Q_EMIT failed(error);
    }
}

} // namespace orv
