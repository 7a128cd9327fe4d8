#include "hosts/command/Style.h"

#include "hosts/command/Json.h"
#include "hosts/command/Looks.h"

#include <fstream>
#include <sstream>
#include <stdexcept>

namespace draftwick::command {

namespace {

/// What elements are that are no styles of paragraphs.
enum class Element { ParagraphStyle, Page, Fonts, Defaults, Object };

Element ElementOf(std::string_view name) {
    if (name == "page") return Element::Page;
    if (name == "fonts") return Element::Fonts;
    if (name == "defaults") return Element::Defaults;
    if (name == "Link" || name == "Verbatim" || name == "table" || name == "cell" || name == "head cell"
        || name == "bullets" || name == "numbers" || name == "section numbers") {
        return Element::Object;
    }
    return Element::ParagraphStyle;
}

/// The font of that name, which is added when there is none.
std::shared_ptr<Font> FontNamed(const std::string& name, const std::shared_ptr<Document>& document) {
    const auto fonts = document->Fonts();
    for (const auto& font : *fonts) {
        if (font->Name() == name) return font;
    }
    return fonts->Add(name);
}

}  // namespace

/// {"heading 1": {"FontFormat.Size": 20, "Format": {"SpaceBefore": 12}}}
class Style::Reader final : public JsonEvents {
public:
    explicit Reader(Style& style) : style_(style) {}

    void Key(std::string_view name) override {
        path_.resize(depth_);
        path_.emplace_back(name);
        if (depth_ == 1) element_ = &style_.elements_[Known(name)];
    }
    void Value(const Scalar& value) override {
        if (depth_ < 2) throw std::invalid_argument("an element has properties, in braces");
        element_->push_back(
            {{path_.begin() + 2, path_.end()}, value.kind, std::string{value.text}, value.truth, Where()});
    }
    void Begin(bool object) override {
        constexpr std::size_t Deepest = 20;
        if (!object) throw std::invalid_argument("a style has no lists");
        if (depth_++ == Deepest) throw std::invalid_argument("nested too deeply");
        path_.resize(depth_);
    }
    void End() override { --depth_; }

private:
    std::string Known(std::string_view name) {
        if (style_.elements_.find(name) == style_.elements_.end()) {
            if (!style_.open_) {
                throw std::invalid_argument(
                    "there is no element \"" + std::string{name} + "\"; "
                    + Alternatives(name, {style_.order_.begin(), style_.order_.end()}));
            }
            style_.order_.emplace_back(name);
        }
        return std::string{name};
    }

    Style& style_;
    std::size_t depth_ = 0;
    std::vector<std::string> path_;
    Settings* element_ = nullptr;
};

Style::Style() {
    Add("plain");
    open_ = false;
}

std::vector<std::string_view> Style::Looks() {
    std::vector<std::string_view> names;
    for (const Look& look : AllLooks) names.push_back(look.name);
    return names;
}

void Style::Add(const std::string& nameOrFile) {
    for (const Look& look : AllLooks) {
        if (look.name != nameOrFile) continue;
        std::istringstream text{std::string{look.text}};
        Add(text, nameOrFile);
        return;
    }
    std::ifstream file(nameOrFile, std::ios::binary);
    if (!file) {
        throw Failure({nameOrFile},
                      "no such style file, and no look of this name; " + Alternatives(nameOrFile, Looks()));
    }
    Add(file, nameOrFile);
}

void Style::Add(std::istream& input, const std::string& name) {
    Reader reader(*this);
    ReadJson(input, name, reader);
}

void Style::Set(const Setting& setting, const Target& target, std::size_t from) {
    try {
        Target at = target;
        for (std::size_t i = from; i + 1 < setting.path.size(); ++i) at = at.Part(setting.path[i]);
        const std::string& last = setting.path.back();
        // A font needs to be known before it is used.
        if (setting.kind == Scalar::Kind::Text && last.ends_with("FontName") && !setting.text.empty())
            FontNamed(setting.text, target.Of()->Document());
        at.Set(last, {setting.kind, setting.text, setting.truth});
    } catch (const std::invalid_argument& error) {
        throw Failure(setting.place, error.what());
    } catch (const Error& error) {
        throw Failure(setting.place, Explain(error));
    }
}

void Style::Prepare(const std::shared_ptr<Document>& document) const {
    for (const std::string& name : order_) {
        const Settings& settings = elements_.find(name)->second;
        switch (ElementOf(name)) {
        case Element::Page: Apply(name, document); break;
        case Element::Fonts:
            for (const Setting& setting : settings) {
                const auto font = FontNamed(setting.path.front(), document);
                if (setting.path.size() > 1) Set(setting, Target(font), 1);
            }
            break;
        case Element::ParagraphStyle: Apply(name, document->ParagraphStyles()->Add(name)); break;
        case Element::Defaults:
        case Element::Object: break;
        }
    }
}

void Style::Apply(std::string_view element, const std::shared_ptr<Object>& object) const {
    const auto found = elements_.find(element);
    if (found == elements_.end() || found->second.empty()) return;
    const Target target(object);
    for (const Setting& setting : found->second) Set(setting, target, 0);
}

std::string Style::Default(std::string_view name) const {
    std::string text;
    for (const Setting& setting : elements_.find("defaults")->second) {
        if (setting.path.back() == name) text = setting.text;
    }
    return text;
}

}  // namespace draftwick::command
