#include <hosts/c/include/draftwick/draftwick_c.h>

#include <hosts/model/Json.h>

#include <draftwick/draftwick.h>

#include <algorithm>
#include <array>
#include <cstring>
#include <map>
#include <memory>
#include <new>
#include <string>
#include <system_error>
#include <type_traits>

using namespace draftwick;

struct dw_object {
    std::shared_ptr<Object> object;
};

namespace {

thread_local struct {
    dw_error error{0, "", "", "", ""};
    std::string text, source, advice, file;
} last;

dw_status Keep(dw_status status, std::int32_t number, std::string_view text, std::string_view source = {},
               std::string_view advice = {}, std::string_view file = {}) noexcept {
    last.error = {number, "", "", "", ""};
    try {
        last.text = text, last.source = source, last.advice = advice, last.file = file;
        last.error = {number, last.text.c_str(), last.source.c_str(), last.advice.c_str(), last.file.c_str()};
    } catch (const std::bad_alloc&) {
        // The number must do.
    }
    return status;
}

/// The border: no exception leaves the library.
template <class Work>
dw_status Guarded(const Work& work) noexcept {
    try {
        work();
        return DW_OK;
    } catch (const Error& error) {
        return Keep(DW_REFUSED, error.Number(), error.what(), error.Source(), error.Advice());
    } catch (const FileError& error) {
        return Keep(DW_SYSTEM, error.code().value(), error.what(), {}, {}, error.Filename());
    } catch (const std::system_error& error) {
        return Keep(DW_SYSTEM, error.code().value(), error.what());
    } catch (const std::bad_alloc&) {
        return Keep(DW_MEMORY, 0, "There is no memory.");
    } catch (const std::exception& error) {
        return Keep(DW_INTERNAL, 0, error.what());
    }
}

[[noreturn]] void Refuse(const char* why) { detail::RaiseRuntimeError(dwRunInvalidCall, why); }

/// What must not be NULL.
template <class Pointed>
Pointed& Given(Pointed* pointer) {
    if (pointer == nullptr) Refuse("NULL is given where something is needed");
    return *pointer;
}

std::string_view Name(const char* name) { return &Given(name); }

Variant Receive(const dw_value& value) {
    switch (value.kind) {
    case DW_NOTHING: return {};
    case DW_BOOLEAN: return value.as.boolean != 0;
    case DW_NUMBER: return value.as.number;
    case DW_REAL: return value.as.real;
    case DW_TEXT:
        if (value.as.text.size == 0) return std::string{};
        return std::string{&Given(value.as.text.data), value.as.text.size};
    case DW_DATE: {
        const dw_date& date = value.as.date;
        return Date{date.year, date.month, date.day, date.hour, date.minute, date.second};
    }
    case DW_OBJECT: return value.as.object == nullptr ? Variant{} : Variant{value.as.object->object};
    default: Refuse("there is no such kind of value");
    }
}

/// Nothing is given away before all of it is there.
dw_value Send(Variant&& from) {
    dw_value to{};
    if (const auto* on = std::get_if<bool>(&from)) to.as.boolean = *on ? 1 : 0;
    if (const auto* number = std::get_if<std::int32_t>(&from)) to.as.number = *number;
    if (const auto* real = std::get_if<double>(&from)) to.as.real = *real;
    if (const auto* text = std::get_if<std::string>(&from)) {
        char* copy = new char[text->size() + 1];
        std::memcpy(copy, text->c_str(), text->size() + 1);
        to.as.text = {copy, text->size()};
    }
    if (const auto* date = std::get_if<Date>(&from))
        to.as.date = {date->year, date->month, date->day, date->hour, date->minute, date->second};
    if (auto* object = std::get_if<std::shared_ptr<Object>>(&from))
        to.as.object = new dw_object{std::move(*object)};
    // The kinds are the alternatives of a Variant, in its order.
    static_assert(
        std::is_same_v<std::variant_alternative_t<DW_TEXT, Variant>,
                       std::string> && std::is_same_v<std::variant_alternative_t<DW_DATE, Variant>, Date>);
    to.kind = static_cast<std::int32_t>(from.index());
    return to;
}

}  // namespace

int32_t dw_c_version(void) { return DW_C_VERSION; }

const char* dw_describe(void) {
    static const std::string text = hosts::DescribeAsJson();
    return text.c_str();
}

dw_status dw_create(const char* class_name, dw_object** object) {
    return Guarded([&] {
        Given(object) = nullptr;
        const std::string_view wanted = Name(class_name);
        for (const Class* one : Classes()) {
            if (one->name == wanted && one->create != nullptr) *object = new dw_object{one->create()};
        }
        if (*object == nullptr) detail::RaiseRuntimeError(dwRunCannotCreateObject, class_name);
    });
}

dw_object* dw_retain(const dw_object* object) {
    return object == nullptr ? nullptr : new (std::nothrow) dw_object{object->object};
}

void dw_release(dw_object* object) { delete object; }

int32_t dw_same(const dw_object* one, const dw_object* other) {
    if (one == nullptr || other == nullptr) return one == other ? 1 : 0;
    return one->object == other->object ? 1 : 0;
}

const char* dw_class_of(const dw_object* object) {
    if (object == nullptr) return nullptr;
    static const auto names = [] {
        std::map<const Class*, std::string> all;
        for (const Class* one : Classes()) all.emplace(one, one->name);
        return all;
    }();
    return names.at(&object->object->Description()).c_str();
}

dw_status dw_get(dw_object* object, const char* property, dw_value* value) {
    return Guarded([&] {
        Given(value) = {};
        *value = Send(Get(*Given(object).object, Name(property)));
    });
}

dw_status dw_set(dw_object* object, const char* property, const dw_value* value) {
    return Guarded([&] { Set(*Given(object).object, Name(property), Receive(Given(value))); });
}

dw_status dw_call(dw_object* object, const char* method, const dw_value* arguments, size_t count,
                  dw_value* result) {
    return Guarded([&] {
        if (result != nullptr) *result = {};
        std::array<Variant, 8> values;  // more than any member takes: the library refuses what is too much
        count = std::min(count, values.size());
        for (std::size_t i = 0; i < count; ++i) values[i] = Receive((&Given(arguments))[i]);
        Variant given = Call(*Given(object).object, Name(method), std::span{values.data(), count});
        if (result != nullptr) *result = Send(std::move(given));
    });
}

dw_status dw_finish_to(dw_object* document, dw_sink sink, void* user) {
    return Guarded([&] {
        auto* const found = dynamic_cast<Document*>(Given(document).object.get());
        if (found == nullptr || sink == nullptr) Refuse("a document and a function are needed");
        found->FinishTo([&](std::string_view bytes) {
            const std::int32_t failed = sink(bytes.data(), bytes.size(), user);
            if (failed != 0) throw std::system_error(failed, std::generic_category());
        });
    });
}

void dw_clear(dw_value* value) {
    if (value == nullptr) return;
    if (value->kind == DW_TEXT) delete[] value->as.text.data;
    if (value->kind == DW_OBJECT) dw_release(value->as.object);
    *value = {};
}

const dw_error* dw_last_error(void) { return &last.error; }
