#pragma once

#include <orv/samples/SamplesInput.h>
#include <orv/table_model/RecordSheet.h>

namespace orv::SampleColumns {

using Sample = SamplesInput::SampleWithCustomColumns;

/// The columns of a table of samples: those that every sample has, and then the custom ones.
[[nodiscard]] RecordSheet<Sample>::Columns columns(const SamplesInput::CustomColumns &custom);

} // namespace orv::SampleColumns
