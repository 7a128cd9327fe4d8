#include <draftwick/content/TextItem.h>
#include <draftwick/content/internal/Writers.h>
#include <draftwick/model/internal/ClassTable.h>
#include <draftwick/model/internal/Session.h>
#include <draftwick/text/Escape.h>
#include <draftwick/text/Utf8.h>

namespace draftwick {

TextItem::TextItem(const Origin& origin, std::string_view text, bool raw) : Run(origin) {
    if (raw) {
        text_ = ToValidUtf8(text);
    } else {
        AppendEscaped(text_, text);
    }
}

void TextItem::AddText(std::string_view text) {
    OpenForChange();
    AppendEscaped(text_, text);
}

void TextItem::AddRawText(std::string_view text) {
    OpenForChange();
    text_ += ToValidUtf8(text);
}

void TextItem::AddSpecial(std::string_view special) {
    OpenForChange();
    std::string code = ToValidUtf8(special);
    for (char& c : code) {
        if (c >= 'A' && c <= 'Z') c = static_cast<char>(c - 'A' + 'a');
    }
    if (code.empty() || code.front() != '\\') code.insert(code.begin(), '\\');
    text_ += code + " ";
}

void TextItem::WriteStart() { EmitTextItem(Writer(), Settings(), text_, Session().settings); }

const Class& TextItem::Describe() {
    using T = TextItem;
    static const Class description{"TextItem",
                                   "{D7F0AD93-80D4-43EE-A899-0FC26A7D0E30}",
                                   "{FD030CEF-2FDF-4A4C-A840-25816C9208C4}",
                                   {
                                       PropertyOf<&T::Emitted>("Emitted"),
                                       PropertyOf<&T::Text>("Text"),
                                       PropertyOf<&T::StyleName, &T::SetStyleName>("StyleName"),
                                       PropertyOf<&T::FontFormat>("FontFormat"),
                                       PropertyOf<&T::Background>("Background"),
                                       PropertyOf<&T::Border>("Border"),
                                   },
                                   {
                                       MethodOf<&T::AddText>("AddText", {{"Value"}}),
                                       MethodOf<&T::AddRawText>("AddRawText", {{"Value"}}),
                                       MethodOf<&T::AddSpecial>("AddSpecial", {{"Special"}}),
                                   }};
    return description;
}

}  // namespace draftwick
