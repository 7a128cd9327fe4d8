// Many documents at a time: one thread for each statement of account.
//
// usage: many_documents OUTPUT.rtf     also writes OUTPUT.rtf.2.rtf to OUTPUT.rtf.4.rtf
#include <draftwick/draftwick.h>

#include <exception>
#include <future>
#include <iostream>
#include <string>
#include <vector>

using namespace draftwick;

namespace {

struct Account {
    const char* holder;
    int payment;  // a month
};
constexpr Account Accounts[] = {{"A. Alder", 120}, {"B. Birch", 75}, {"C. Cedar", 230}, {"D. Dogwood", 18}};

// [one]
/// A document and everything in it belongs to the thread that uses it. Nothing is shared with other documents, and
/// the temporary files of two never meet.
void WriteStatement(const Account& account, const std::string& filename) {
    auto document = Document::Create();
    document->SetFilename(filename);
    document->SetSpelling(dwSpellingStandard);
    document->Fonts()->Add("Arial")->SetFamily(dwSwiss);
    document->SetDefaultFontName("Arial");
    auto normal = document->ParagraphStyles()->Add("Normal");
    normal->FontFormat()->SetSize(11);
    normal->Format()->SetSpaceAfter(6);
    normal->TabStops()->Add(2.5, dwTabDecimal, dwTabLeaderDots);

    auto section = document->AddSection();
    section->AddParagraph("Normal", std::string{"Statement for "} + account.holder);
    int balance = 0;
    for (const std::string month : {"January", "February", "March", "April"}) {
        balance += account.payment;
        section->AddParagraph("Normal", month + '\t' + std::to_string(balance) + ".00");
    }
    document->Finish();
}
// [one]

// [all]
void WriteStatements(const std::string& filename) {
    std::vector<std::future<void>> statements;
    for (const Account& account : Accounts) {
        const std::size_t number = statements.size() + 1;
        const std::string name = number == 1 ? filename : filename + "." + std::to_string(number) + ".rtf";
        statements.push_back(std::async(std::launch::async, WriteStatement, account, name));
    }
    for (auto& statement : statements) statement.get();  // throws what its document threw
}
// [all]

}  // namespace

int main(int argc, char** argv) {
    if (argc != 2) {
        std::cerr << "usage: many_documents OUTPUT.rtf\n";
        return 2;
    }
    try {
        WriteStatements(argv[1]);
    } catch (const std::exception& error) {
        std::cerr << "many_documents: " << error.what() << '\n';
        return 1;
    }
}
