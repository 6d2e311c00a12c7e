#include "PackedFile.h"

#include <QCoreApplication>
#include <QFile>
#include <QFileInfo>

#include <zlib.h>

namespace orv::msreader::internal {

namespace {

struct PackedFileTr
{
    Q_DECLARE_TR_FUNCTIONS(PackedFile)
};

constexpr QLatin1String kSuffix(".gz");
constexpr unsigned kBufferBytes = 1U << 17;

class GzipFile : public QIODevice
{
public:
    explicit GzipFile(const QString &path)
        : m_file(gzopen(QFile::encodeName(path).constData(), "rb"))
    {
        if (!m_file)
            return;
        gzbuffer(m_file, kBufferBytes);
        QIODevice::open(QIODevice::ReadOnly | QIODevice::Unbuffered);
    }
    ~GzipFile() override
    {
        if (m_file)
            gzclose(m_file);
    }
    Q_DISABLE_COPY_MOVE(GzipFile)

    [[nodiscard]] bool isSequential() const override { return true; }
    [[nodiscard]] bool atEnd() const override { return m_isAtEnd; }

protected:
    qint64 readData(char *data, qint64 size) override
    {
        const int count = gzread(m_file, data, unsigned(qMin<qint64>(size, kBufferBytes)));
        if (count > 0)
            return count;
        // A file that was cut short ends like a whole one, but leaves its reason.
        int code = Z_OK;
        const char *text = gzerror(m_file, &code);
        if (code == Z_OK || code == Z_STREAM_END) {
            m_isAtEnd = true;
        } else if (code == Z_BUF_ERROR) {
            setErrorString(PackedFileTr::tr("The gzip file was cut short."));
        } else {
            setErrorString(
                PackedFileTr::tr("The gzip file is damaged: %1").arg(QString::fromLocal8Bit(text)));
        }
        return -1;
    }
    qint64 writeData(const char * /*data*/, qint64 /*size*/) override { return -1; }

private:
    gzFile m_file;
    bool m_isAtEnd = false;
};

Error cannotOpen(const QString &path, const QString &detail)
{
    return Error(ErrorCode::CannotOpenFile, PackedFileTr::tr("Could not open the file: %1").arg(path))
        .addDetail(detail);
}

} // namespace

bool hasPackedName(const QString &path)
{
    return path.endsWith(kSuffix, Qt::CaseInsensitive);
}

QString unpackedName(const QString &path)
{
    return hasPackedName(path) ? path.chopped(kSuffix.size()) : path;
}

bool isPacked(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) && file.read(2) == QByteArrayView("\x1F\x8B");
}

Result<std::unique_ptr<QIODevice>> openFile(const QString &path)
{
    const QFileInfo info(path);
    if (!info.exists())
        return cannotOpen(path, PackedFileTr::tr("It isn't there, or its folder can't be read."));
    if (!info.isFile())
        return cannotOpen(path, PackedFileTr::tr("It is no regular file."));
    auto file = std::make_unique<QFile>(path);
    if (!file->open(QIODevice::ReadOnly))
        return cannotOpen(path, file->errorString());
    if (!isPacked(path))
        return std::unique_ptr<QIODevice>(std::move(file));
    auto packed = std::make_unique<GzipFile>(path);
    if (!packed->isOpen())
        return cannotOpen(path, PackedFileTr::tr("The gzip file can't be read."));
    return std::unique_ptr<QIODevice>(std::move(packed));
}

} // namespace orv::msreader::internal
