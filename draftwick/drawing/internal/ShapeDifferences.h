#pragma once

#include <draftwick/drawing/internal/Writers.h>

namespace draftwick {

/// Writes the drawing properties whose settings differ from their defaults.
template <class Values>
class ShapeDifferences {
public:
    ShapeDifferences(RtfWriter& writer, const Values& values) : writer_(writer), values_(values) {}

    void Flag(std::string_view name, bool Values::*field) const {
        Write(name, field, values_.*field ? 1 : 0);
    }
    void Number(std::string_view name, std::int32_t Values::*field) const {
        Write(name, field, values_.*field);
    }
    void Length(std::string_view name, draftwick::Length Values::*field) const {
        Write(name, field, TwipsToEmu((values_.*field).Twips()));
    }
    template <class Field>
    void Real(std::string_view name, Field Values::*field) const {
        Write(name, field, (values_.*field).Written());
    }
    /// The position of a value in its enumeration, from 0.
    template <class Field>
    void Position(std::string_view name, Field Values::*field) const {
        Write(name, field, values_.*field - 1);
    }

private:
    template <class Field, class Number>
    void Write(std::string_view name, Field Values::*field, Number number) const {
        static const Values defaults;
        if (values_.*field != defaults.*field) WriteShapeProperty(writer_, name, number);
    }

    RtfWriter& writer_;
    const Values& values_;
};

}  // namespace draftwick
