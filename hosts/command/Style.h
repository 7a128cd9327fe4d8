#pragma once

#include "hosts/command/Json.h"
#include "hosts/command/Member.h"

#include <map>
#include <string>
#include <string_view>
#include <vector>

namespace draftwick::command {

/// What documents look like: for each kind of element the properties that are set, by their paths.
class Style {
public:
    /// The look that every style builds on.
    Style();

    /// Adds a built-in look by its name, or a style file; what it says comes after what was said before. Failure when
    /// there is no such file or something in it is wrong.
    void Add(const std::string& nameOrFile);
    void Add(Input& input);

    /// Adds fonts and styles to a document and sets its page.
    void Prepare(const std::shared_ptr<Document>& document) const;
    /// Sets what is said about a kind of element.
    void Apply(std::string_view element, const ObjectPointer& object) const;
    /// What is said about a single line of the document, like its footer; empty: nothing.
    std::string Default(std::string_view name) const;

private:
    struct Setting {
        std::string font;  // whose it is, in the element of fonts
        std::string path;
        Variant value;
        Place place;

        void Apply(const ObjectPointer& object) const;
    };
    using Settings = std::vector<Setting>;

    Settings& Element(const std::string& name);
    static void Read(JsonReader& json, const std::string& font, const std::string& path, Settings& settings);

    std::vector<std::string> order_;  // of the elements, which is that of the styles
    std::map<std::string, Settings, std::less<>> elements_;
    bool open_ = true;  // elements can still be added: those of the first look are all there are
};

}  // namespace draftwick::command
