#include "KPropertyComposedUrl.h"

class KPropertyComposedUrl::Private
{
public:
    QUrl baseUrl;
    QUrl absoluteUrl;
    QString relativePath;
};

namespace {

/// The empty URL unless \a url stands on its own.
QUrl absoluteOnly(const QUrl &url)
{
    return url.isValid() && !url.isRelative() ? url : QUrl();
}

} // namespace

KPropertyComposedUrl::KPropertyComposedUrl()
    : d(std::make_unique<Private>())
{}

KPropertyComposedUrl::KPropertyComposedUrl(const QUrl &baseUrl, const QString &relativePath)
    : KPropertyComposedUrl()
{
    setBaseUrl(baseUrl);
    setRelativePath(relativePath);
}

KPropertyComposedUrl::KPropertyComposedUrl(const QUrl &baseUrl, const QUrl &absoluteUrl)
    : KPropertyComposedUrl()
{
    setBaseUrl(baseUrl);
    setAbsoluteUrl(absoluteUrl);
}

KPropertyComposedUrl::KPropertyComposedUrl(const KPropertyComposedUrl &other)
    : d(std::make_unique<Private>(*other.d))
{}

KPropertyComposedUrl::~KPropertyComposedUrl() = default;

KPropertyComposedUrl &KPropertyComposedUrl::operator=(const KPropertyComposedUrl &other)
{
    *d = *other.d;
    return *this;
}

bool KPropertyComposedUrl::operator==(const KPropertyComposedUrl &other) const
{
    return d->baseUrl == other.d->baseUrl && d->absoluteUrl == other.d->absoluteUrl &&
           d->relativePath == other.d->relativePath;
}

QUrl KPropertyComposedUrl::value() const
{
    if (d->baseUrl.isEmpty()) {
        return QUrl();
    }
    if (!d->absoluteUrl.isEmpty() || d->relativePath.isEmpty()) {
        return d->absoluteUrl;
    }
    // A path rather than text to parse: '#' and '?' are legal in file names.
    QUrl relative;
    relative.setPath(d->relativePath);
    if (!relative.isValid()) {
        return QUrl();
    }
    QUrl folder = d->baseUrl;
    if (!folder.path().endsWith(QLatin1Char('/'))) {
        folder.setPath(folder.path() + QLatin1Char('/'));
    }
    return folder.resolved(relative);
}

QUrl KPropertyComposedUrl::baseUrl() const
{
    return d->baseUrl;
}

void KPropertyComposedUrl::setBaseUrl(const QUrl &url)
{
    d->baseUrl = absoluteOnly(url);
}

QUrl KPropertyComposedUrl::absoluteUrl() const
{
    return d->absoluteUrl;
}

void KPropertyComposedUrl::setAbsoluteUrl(const QUrl &absoluteUrl)
{
    d->absoluteUrl = absoluteOnly(absoluteUrl);
    d->relativePath.clear();
}

QString KPropertyComposedUrl::relativePath() const
{
    return d->relativePath;
}

void KPropertyComposedUrl::setRelativePath(const QString &relativePath)
{
    d->relativePath = relativePath;
    d->absoluteUrl.clear();
}

bool KPropertyComposedUrl::isValid() const
{
    return value().isValid();
}

QDebug operator<<(QDebug dbg, const KPropertyComposedUrl &p)
{
    const QDebugStateSaver saver(dbg);
    dbg.nospace() << "KPropertyComposedUrl(baseUrl=" << p.baseUrl() << " relativePath=" << p.relativePath()
                  << " absoluteUrl=" << p.absoluteUrl() << ')';
    return dbg;
}
