#include <draftwick/content/TextItem.h>
#include <draftwick/content/internal/Writers.h>
#include <draftwick/model/internal/ClassTable.h>
#include <draftwick/model/internal/Session.h>
#include <draftwick/text/Escape.h>
#include <draftwick/text/Scripts.h>
#include <draftwick/text/Utf8.h>

#include <algorithm>

namespace draftwick {

namespace {

char SmallLetter(char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c; }
bool IsLetter(char c) { return c >= 'a' && c <= 'z'; }
bool IsDigit(char c) { return c >= '0' && c <= '9'; }
bool IsHexadecimal(char c) { return IsDigit(c) || (c >= 'a' && c <= 'f'); }

void Note(unsigned char& all, Letters letters) { all = std::max(all, static_cast<unsigned char>(letters)); }

/// "line" or "li-360": letters and a number, as RTF limits them.
bool IsControlWord(std::string_view word) {
    constexpr std::size_t MostLetters = 32, MostDigits = 10;
    const auto number = std::find_if_not(word.begin(), word.end(), IsLetter);
    const auto digits = number != word.end() && *number == '-' ? number + 1 : number;
    const auto letters = static_cast<std::size_t>(number - word.begin());
    const auto length = static_cast<std::size_t>(word.end() - digits);
    return letters > 0 && letters <= MostLetters && length <= MostDigits
           && (number == word.end() || length > 0) && std::all_of(digits, word.end(), IsDigit);
}

/// The code in RTF with what ends it; empty for what is no code, or one that would take text behind it along.
std::string SpecialCode(std::string_view special) {
    std::string word{special.substr(special.starts_with('\\') ? 1 : 0)};
    std::transform(word.begin(), word.end(), word.begin(), SmallLetter);
    // Readers do not know these two words.
    if (word == "emspace") return "\u2003";
    if (word == "enspace") return "\u2002";
    if (IsControlWord(word)) {
        if (word.starts_with("bin") && (word.size() == 3 || !IsLetter(word[3]))) return {};
        const bool isCharacter = word.size() > 1 && word[0] == 'u' && !IsLetter(word[1]);
        return "\\" + word + (isCharacter ? " ?" : " ");
    }
    if (!special.starts_with('\\')) return {};
    if (word.size() == 1 && std::string_view{"~_-:|\\{}"}.find(word[0]) != std::string_view::npos)
        return "\\" + word;
    if (word.size() < 2 || word.size() > 3 || word[0] != '\''
        || !std::all_of(word.begin() + 1, word.end(), IsHexadecimal))
        return {};
    return word.size() == 2 ? "\\'0" + word.substr(1) : "\\" + word;
}

}  // namespace

TextItem::TextItem(const Origin& origin, std::string_view text, bool raw)
    : Run(origin), text_(raw ? ToValidUtf8(text) : Escape(text)) {
    if (raw) Note(letters_, Letters::Any);
}

std::string TextItem::Escape(std::string_view text) {
    const bool standard = SharedSession()->settings.spelling == dwSpellingStandard;
    Letters letters;
    std::string escaped = EscapeText(text, standard ? Escaping::Lines : Escaping::Classic, letters);
    Note(letters_, letters);
    return escaped;
}

void TextItem::Append(std::string_view text) { text_ += Escape(text); }

void TextItem::AddText(std::string_view text) {
    OpenForChange();
    Append(text);
}

void TextItem::AddRawText(std::string_view text) {
    OpenForChange();
    text_ += ToValidUtf8(text);
    Note(letters_, Letters::Any);
}

void TextItem::AddSpecial(std::string_view special) {
    OpenForChange();
    if (Session().settings.spelling == dwSpellingStandard) {
        const std::string code = SpecialCode(special);
        if (code.empty()) {
            Append(special);
        } else {
            text_ += code;
            Note(letters_, Letters::Western);
        }
        return;
    }
    std::string code = ToValidUtf8(special);
    for (char& c : code) {
        c = SmallLetter(c);
    }
    if (code.empty() || code.front() != '\\') code.insert(code.begin(), '\\');
    text_ += code + " ";
    Note(letters_, Letters::Western);
}

void TextItem::WriteStart() {
    detail::Session& session = Session();
    EmitTextItem(session.writer, Settings(), text_, static_cast<Letters>(letters_), session.settings);
}

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
