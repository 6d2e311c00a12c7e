#include "orv/core_ms/ChromatogramFilters.h"

namespace orv::msreader::ChromatogramFilters {

bool all(const ChromatogramInfo & /*info*/)
{
    return true;
}

bool ms(const ChromatogramInfo &info)
{
    return !nonMs(info);
}

bool nonMs(const ChromatogramInfo &info)
{
    return info.type == ChromatogramType::Other || info.type == ChromatogramType::Light;
}

} // namespace orv::msreader::ChromatogramFilters
