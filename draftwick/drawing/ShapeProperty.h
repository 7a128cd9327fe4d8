#pragma once

#include <cstdint>
#include <string_view>

namespace draftwick {

class Output;

/// {\sp{\sn name}{\sv value}}: one drawing property of a shape. The value is escaped; an empty one leaves the
/// delimiter of \sv.
void WriteShapeProperty(Output& output, std::string_view name, std::string_view value);
void WriteShapeProperty(Output& output, std::string_view name, std::int32_t value);
void WriteShapeProperty(Output& output, std::string_view name, double value);

/// "{\sp{\sn name}{\sv " and "}}", for a value that is not a text.
void WriteShapePropertyStart(Output& output, std::string_view name);
void WriteShapePropertyEnd(Output& output);

/// Twips as English Metric Units, 635 to the twip. Error 6 when they do not fit 32 bits.
std::int32_t TwipsToEmu(std::int32_t twips);

}  // namespace draftwick
