#pragma once

#include "batch/json_writer.h"

namespace ferna::testing {

/// What `writeSection` writes of a section that has been worked.
template <typename... Worked>
Json written(const Worked&... worked) {
    batch::JsonWriter json(batch::JsonWriter::Layout::OneLine);
    writeSection(json, worked...);
    return Json::parse(json.written());
}

} // namespace ferna::testing
