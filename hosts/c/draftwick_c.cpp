#include <hosts/c/include/draftwick/draftwick_c.h>

#include <hosts/model/Json.h>
#include <hosts/model/Names.h>

#include <draftwick/draftwick.h>

#include <array>
#include <cstring>
#include <map>
#include <memory>
#include <new>
#include <string>
#include <system_error>
#include <type_traits>
#include <vector>

using namespace draftwick;

struct dw_object {
    std::shared_ptr<Object> object;
};

namespace {

struct LastError {
    dw_error error{0, "", "", "", ""};
    std::string text, source, advice, file;
};
thread_local LastError lastError;

dw_status Keep(dw_status status, std::int32_t number, std::string_view text, std::string_view source = {},
               std::string_view advice = {}, std::string_view file = {}) noexcept {
    LastError& last = lastError;
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
    std::visit(
        [&to](auto& plain) {
            using Plain = std::decay_t<decltype(plain)>;
            if constexpr (std::is_same_v<Plain, bool>) {
                to.kind = DW_BOOLEAN;
                to.as.boolean = plain ? 1 : 0;
            } else if constexpr (std::is_same_v<Plain, std::int32_t>) {
                to.kind = DW_NUMBER;
                to.as.number = plain;
            } else if constexpr (std::is_same_v<Plain, double>) {
                to.kind = DW_REAL;
                to.as.real = plain;
            } else if constexpr (std::is_same_v<Plain, std::string>) {
                char* copy = new char[plain.size() + 1];
                std::memcpy(copy, plain.c_str(), plain.size() + 1);
                to.kind = DW_TEXT;
                to.as.text = {copy, plain.size()};
            } else if constexpr (std::is_same_v<Plain, Date>) {
                to.kind = DW_DATE;
                to.as.date = {plain.year, plain.month, plain.day, plain.hour, plain.minute, plain.second};
            } else if constexpr (!std::is_same_v<Plain, std::monostate>) {
                to.kind = DW_OBJECT;
                to.as.object = new dw_object{std::move(plain)};
            }
        },
        from);
    return to;
}

Variant CallWith(Object& object, std::string_view method, const dw_value* arguments, size_t count) {
    constexpr std::size_t Usual = 4;
    if (count <= Usual) {
        std::array<Variant, Usual> values;
        for (std::size_t i = 0; i < count; ++i) values[i] = Receive((&Given(arguments))[i]);
        return Call(object, method, std::span<const Variant>{values.data(), count});
    }
    std::vector<Variant> values;
    for (std::size_t i = 0; i < count; ++i) values.push_back(Receive((&Given(arguments))[i]));
    return Call(object, method, values);
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
        const Class* found = hosts::FindClass(Name(class_name));
        if (found == nullptr || found->create == nullptr)
            detail::RaiseRuntimeError(dwRunCannotCreateObject, class_name);
        *object = new dw_object{found->create()};
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
        Variant given = CallWith(*Given(object).object, Name(method), arguments, count);
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

const dw_error* dw_last_error(void) { return &lastError.error; }
