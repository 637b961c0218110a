// The streams as the event renderers construct them.
#pragma once

#include "core/xml_stream.h"

namespace ui::event {

using indented_output = io::text::indented::output_stream<wchar, ' ', 1, io::text::output_stream<wchar>>;

class xml_output : public io::xml::output::stream<wchar, indented_output> {
public:
    using stream::stream;
};

class text_output : public io::text::output_stream<wchar> {
public:
    using output_stream::output_stream;
};

} // namespace ui::event
