// Tables of the tests, written as text.
#pragma once

#include <orv/table/rn.h>

#include <QtGlobal>

inline orv::RowNode tableOf(const QByteArray &json)
{
    orv::RowNode table;
    if (!orv::rn::parse(json, &table))
        qFatal("the test's table is no table");
    return table;
}
