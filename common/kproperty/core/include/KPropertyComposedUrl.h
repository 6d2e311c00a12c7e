#pragma once

#include "kpropertycore_export.h"

#include <QDebug>
#include <QMetaType>
#include <QString>
#include <QUrl>

#include <memory>

/*! A URL given either absolutely or by a path relative to a base URL.

    @code
    KPropertyComposedUrl url(QUrl(QStringLiteral("file:///data/run1/")), QStringLiteral("sample.raw"));
    url.value();                           // file:///data/run1/sample.raw
    url.setBaseUrl(QUrl(QStringLiteral("file:///copy/"))); // the path follows its base
    @endcode

    A plain value: use it in one thread at a time. */
class KPROPERTYCORE_EXPORT KPropertyComposedUrl
{
public:
    /// Empty and invalid.
    KPropertyComposedUrl();
    KPropertyComposedUrl(const QUrl &baseUrl, const QString &relativePath = QString());
    /// The base is kept for a later setRelativePath().
    KPropertyComposedUrl(const QUrl &baseUrl, const QUrl &absoluteUrl);
    KPropertyComposedUrl(const KPropertyComposedUrl &other);
    ~KPropertyComposedUrl();

    KPropertyComposedUrl &operator=(const KPropertyComposedUrl &other);
    /// Equal when base, path and absolute URL are: two roads to one file are not the same value.
    bool operator==(const KPropertyComposedUrl &other) const;
    bool operator!=(const KPropertyComposedUrl &other) const { return !operator==(other); }

    /// The absolute URL, else base URL and relative path. Empty when invalid, which it is without a base URL.
    QUrl value() const;

    QUrl baseUrl() const;
    /// One that is not absolute clears the base.
    void setBaseUrl(const QUrl &url);

    QUrl absoluteUrl() const;
    /// One that is not absolute clears it. The relative path is cleared in any case.
    void setAbsoluteUrl(const QUrl &absoluteUrl);

    QString relativePath() const;
    /// Clears the absolute URL.
    void setRelativePath(const QString &relativePath);

    bool isValid() const;

private:
    class Private;
    const std::unique_ptr<Private> d;
};

Q_DECLARE_METATYPE(KPropertyComposedUrl)

KPROPERTYCORE_EXPORT QDebug operator<<(QDebug dbg, const KPropertyComposedUrl &p);
