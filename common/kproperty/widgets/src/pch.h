// What most sources of the library read.
#pragma once

#include <QPainter>
#include <QStyleOptionViewItem>
#include <QVariant>
#include <QWidget>

#include <memory>
