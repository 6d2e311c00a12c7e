#include "Logging.h"

Q_LOGGING_CATEGORY(kpropertyLog, "kproperty")
