// Builds documents from steps on standard input, one a line, in the language of tests/words/README.md: what the
// interoperability tests say in Python, the library does. An empty line begins a new document.
#include "tests/support/Script.h"

#include <exception>
#include <iostream>
#include <string>

using namespace draftwick;

int main() {
    std::shared_ptr<Document> document = Document::Create();
    test::Script script(document);
    for (std::string step; std::getline(std::cin, step);) {
        try {
            if (step.empty()) {
                document = Document::Create();
                script = test::Script(document);
            } else {
                script.Run(step);
            }
        } catch (const std::exception& error) {
            std::cerr << step << ": " << error.what() << '\n';
            return 1;
        }
    }
}
