// A mail merge: letters in ten languages, two of which are written from right to left, each on a small page.
//
// usage: mail_merge OUTPUT.rtf
#include <draftwick/draftwick.h>

#include <exception>
#include <iostream>
#include <string>
#include <string_view>
#include <utility>

using namespace draftwick;

namespace {

struct Letter {
    const char* greeting;
    const char* text;
    const char* seats;
    const char* closing;
};
constexpr Letter English{"Hello, {name}!",
                         "The Lantern Theatre opens again on 3 May. The tram to “{town}” stops at the door.",
                         "Row 1, seats {seats}", "See you soon! 🎈🎵"};
constexpr Letter German{
    "Guten Tag, {name}!",
    "Das Laternentheater öffnet am 3. Mai wieder. Die Straßenbahn nach „{town}“ hält vor der Tür.",
    "Reihe 1, Plätze {seats}", "Bis bald! 🎈🎵"};
constexpr Letter French{
    "Bonjour, {name} !",
    "Le théâtre de la Lanterne rouvre le 3 mai. Le tramway « {town} » s’arrête à la porte.",
    "Rang 1, places {seats}", "À bientôt ! 🎈🎵"};
constexpr Letter Polish{
    "Dzień dobry, {name}!",
    "Teatr Latarnia znów otwiera drzwi 3 maja. Tramwaj „{town}” zatrzymuje się przed wejściem.",
    "Rząd 1, miejsca {seats}", "Do zobaczenia! 🎈🎵"};
constexpr Letter Greek{
    "Καλημέρα, {name}!",
    "Το θέατρο «Φανάρι» ανοίγει ξανά στις 3 Μαΐου. Το τραμ «{town}» σταματά μπροστά στην πόρτα.",
    "Σειρά 1, θέσεις {seats}", "Τα λέμε σύντομα! 🎈🎵"};
constexpr Letter Russian{"Здравствуйте, {name}!",
                         "Театр «Фонарь» снова открывается 3 мая. Трамвай «{town}» останавливается у входа.",
                         "Ряд 1, места {seats}", "До скорой встречи! 🎈🎵"};
constexpr Letter Hebrew{"שלום, {name}!", "תיאטרון הפנס נפתח מחדש ב־3 במאי. החשמלית „{town}” עוצרת ליד הדלת.",
                        "שורה 1, מושבים {seats}", "להתראות! 🎈🎵"};
constexpr Letter Arabic{"مرحبًا، {name}!",
                        "يعيد مسرح الفانوس فتح أبوابه في 3 مايو. يتوقف ترام «{town}» أمام الباب.",
                        "الصف 1، المقاعد {seats}", "إلى اللقاء! 🎈🎵"};
constexpr Letter Hindi{"नमस्ते, {name}!",
                       "लालटेन थिएटर 3 मई को फिर खुल रहा है। “{town}” वाली ट्राम दरवाज़े पर रुकती है।",
                       "पंक्ति 1, सीटें {seats}", "जल्दी मिलेंगे! 🎈🎵"};
constexpr Letter Japanese{
    "{name}様", "「ランタン劇場」は5月3日に再開します。路面電車「{town}」線は劇場の前に停まります。",
    "1列目、座席 {seats}", "またお会いしましょう! 🎈🎵"};

struct Guest {
    const char* name;
    const char* town;
    const char* seats;
    const Letter& letter;
};
constexpr Guest Guests[] = {
    {"Nguyễn Thị Hoa", "Łódź", "1, 2", English},     {"Jörg Weiß", "Köln", "3", German},
    {"Chloé Dvořáková", "Besançon", "4, 5", French}, {"Łucja Świątek", "Gdańsk", "6", Polish},
    {"Ελένη Παππά", "Θεσσαλονίκη", "7, 8", Greek},   {"Алёна Щукина", "Ярославль", "9", Russian},
    {"נועה לוי", "באר שבע", "10, 11", Hebrew},       {"ليلى حداد", "بيروت", "12", Arabic},
    {"अदिति श्रीवास्तव", "वाराणसी", "13, 14", Hindi},  {"渡邉 さくら", "名古屋", "15", Japanese},
};

// [merge]
/// The text with what is known of the guest in place of {name}, {town} and {seats}.
std::string Merged(std::string text, const Guest& guest) {
    for (const auto& [field, value] : {std::pair<std::string_view, const char*>{"{name}", guest.name},
                                       {"{town}", guest.town},
                                       {"{seats}", guest.seats}}) {
        if (const auto at = text.find(field); at != std::string::npos) text.replace(at, field.size(), value);
    }
    return text;
}

/// Nothing here depends on the language: a paragraph whose first letter is Hebrew or Arabic runs from right to left.
void AddLetter(Section& section, const Guest& guest) {
    section.AddParagraph("Greeting", Merged(guest.letter.greeting, guest));
    section.AddParagraph("Letter", Merged(guest.letter.text, guest));
    section.AddParagraph("Seats", Merged(guest.letter.seats, guest));
    section.AddParagraph("Letter", Merged(guest.letter.closing, guest));
}
// [merge]

void AddStyles(Document& document) {
    document.Fonts()->Add("Arial")->SetFamily(dwSwiss);
    document.SetDefaultFontName("Arial");
    auto letter = document.ParagraphStyles()->Add("Letter");
    letter->FontFormat()->SetSize(12);
    letter->Format()->SetSpaceAfter(4);
    auto greeting = document.ParagraphStyles()->Add("Greeting");
    greeting->SetBasedOn("Letter");
    greeting->FontFormat()->SetSize(15);
    greeting->FontFormat()->SetColor(Rgb(180, 40, 40));
    auto seats = document.ParagraphStyles()->Add("Seats");
    seats->SetBasedOn("Letter");
    seats->FontFormat()->SetBold(true);
}

void WriteLetters(const char* filename) {
    auto document = Document::Create();
    document->SetFilename(filename);
    document->SetSpelling(dwSpellingStandard);
    document->SetPageWidth(4.6);
    document->SetPageHeight(2);
    document->SetMarginTop(0.3);
    document->SetMarginBottom(0.2);
    AddStyles(*document);
    // A section begins on a new page. For a file for each guest, a document would be created here.
    for (const Guest& guest : Guests) AddLetter(*document->AddSection(), guest);
    document->Finish();
}

}  // namespace

int main(int argc, char** argv) {
    if (argc != 2) {
        std::cerr << "usage: mail_merge OUTPUT.rtf\n";
        return 2;
    }
    try {
        WriteLetters(argv[1]);
    } catch (const std::exception& error) {
        std::cerr << "mail_merge: " << error.what() << '\n';
        return 1;
    }
}
