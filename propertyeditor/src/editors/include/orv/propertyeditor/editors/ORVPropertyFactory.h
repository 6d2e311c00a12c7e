#pragma once

#include <KPropertyWidgetsFactory.h>
#include <orv/widgets/Export.h>

namespace orv {

/// The editors of this system's own types of properties. References are edited in the form for the server
/// where the main window at construction is that of the server's application. GUI thread.
class ORV_PROPERTY_EDITOR_EXPORT ORVPropertyFactory : public KPropertyWidgetsFactory
{
public:
    ORVPropertyFactory();
    ~ORVPropertyFactory() override;

    /// Registers one factory for the process; later calls do nothing.
    static void init();
};

} // namespace orv
