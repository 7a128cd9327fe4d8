#include "hosts/command/Style.h"

#include "hosts/command/Looks.h"

#include <algorithm>
#include <filesystem>
#include <iterator>

namespace draftwick::command {

namespace {

/// Elements that are no styles of paragraphs.
constexpr std::string_view Objects[] = {"page", "fonts",     "defaults", "Link",    "Verbatim",       "table",
                                        "cell", "head cell", "bullets",  "numbers", "section numbers"};

/// The font of that name, which is added when there is none.
std::shared_ptr<Font> FontNamed(const std::string& name, const Document& document) {
    const auto fonts = document.Fonts();
    const auto found =
        std::find_if(fonts->begin(), fonts->end(), [&](const auto& font) { return font->Name() == name; });
    return found != fonts->end() ? *found : fonts->Add(name);
}

}  // namespace

Style::Style() {
    Add("plain");
    open_ = false;
}

void Style::Add(const std::string& nameOrFile) {
    for (const Look& look : AllLooks) {
        if (look.name != nameOrFile) continue;
        Input text(std::string{look.text}, nameOrFile);
        return Add(text);
    }
    if (std::error_code unknown; !std::filesystem::exists(nameOrFile, unknown)) {
        throw Failure({nameOrFile}, "no such style file, and no look of this name; "
                                        + Alternatives(nameOrFile, AllLooks, &Look::name));
    }
    Input file(nameOrFile);
    Add(file);
}

/// {"heading 1": {"FontFormat.Size": 20, "Format": {"SpaceBefore": 12}}, "fonts": {"Arial": {"Family": "dwSwiss"}}}
void Style::Add(Input& input) {
    ReadJson(input, [this](JsonReader& json) {
        json.Object([&](const std::string& element) {
            Settings& settings = Element(element);
            json.Object([&](const std::string& name) {
                if (element != "fonts") return Read(json, {}, name, settings);
                json.Object([&](const std::string& member) { Read(json, name, member, settings); });
            });
        });
    });
}

Style::Settings& Style::Element(const std::string& name) {
    const auto found = elements_.find(name);
    if (found != elements_.end()) return found->second;
    if (!open_) {
        Refuse("there is no element " + Quoted(name) + "; "
               + Alternatives(name, {order_.begin(), order_.end()}));
    }
    order_.push_back(name);
    return elements_[name];
}

void Style::Read(JsonReader& json, const std::string& font, const std::string& path, Settings& settings) {
    if (json.Peek() == '{') {
        json.Object([&](const std::string& name) { Read(json, font, path + '.' + name, settings); });
    } else {
        Variant value = json.Scalar();
        settings.push_back({font, path, std::move(value), json.Where()});
    }
}

void Style::Setting::Apply(const ObjectPointer& object) const {
    Locate([this] { return place; },
           [&] {
               // A font needs to be known before it is used.
               const auto* text = std::get_if<std::string>(&value);
               if (text != nullptr && !text->empty() && path.ends_with("FontName"))
                   FontNamed(*text, *object->Document());
               Member(object, path).Set(value);
           });
}

void Style::Prepare(const std::shared_ptr<Document>& document) const {
    Apply("page", document);
    for (const Setting& setting : elements_.at("fonts")) setting.Apply(FontNamed(setting.font, *document));
    for (const std::string& name : order_) {
        if (std::find(std::begin(Objects), std::end(Objects), name) == std::end(Objects))
            Apply(name, document->ParagraphStyles()->Add(name));
    }
}

void Style::Apply(std::string_view element, const ObjectPointer& object) const {
    const auto found = elements_.find(element);
    if (found == elements_.end()) return;
    for (const Setting& setting : found->second) setting.Apply(object);
}

std::string Style::Default(std::string_view name) const {
    std::string text;
    for (const Setting& setting : elements_.at("defaults")) {
        if (const auto* value = std::get_if<std::string>(&setting.value);
            value != nullptr && setting.path == name)
            text = *value;
    }
    return text;
}

}  // namespace draftwick::command
