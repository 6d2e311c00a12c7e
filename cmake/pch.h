// The headers that nearly every source reads. Sources still include what they use: public headers are
// compiled alone without this file.
#pragma once

#include <QByteArray>
#include <QCoreApplication>
#include <QDateTime>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QHash>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QList>
#include <QLoggingCategory>
#include <QMap>
#include <QMetaEnum>
#include <QObject>
#include <QRegularExpression>
#include <QSet>
#include <QSharedData>
#include <QString>
#include <QStringList>
#include <QUrl>
#include <QVariant>
#include <QVersionNumber>

#include <algorithm>
#include <array>
#include <functional>
#include <memory>
#include <optional>
#include <utility>
#include <variant>
#include <vector>
