// A web server that answers with documents. It asks itself a thousand times, by four clients at once, and ends.
//
// usage: http_server OUTPUT.rtf     writes the last answer
//
// Needs cpp-httplib (https://github.com/yhirose/cpp-httplib).
#include <draftwick/draftwick.h>

#include <exception>
#include <fstream>
#include <future>
#include <httplib.h>
#include <iostream>
#include <sstream>
#include <stdexcept>
#include <string>
#include <thread>
#include <vector>

using namespace draftwick;

namespace {

// [document]
/// The receipt for an order, as the bytes of a file. Nothing is written to any folder.
std::string MakeReceipt(const std::string& customer, int order) {
    auto document = Document::Create();
    document->SetBodyInMemory(true);
    document->SetSpelling(dwSpellingStandard);
    document->SetPaperSize(dwPaperA5);
    document->Fonts()->Add("Liberation Sans")->SetFamily(dwSwiss);
    document->SetDefaultFontName("Liberation Sans");
    document->ParagraphStyles()->Add("Title")->FontFormat()->SetSize(18);
    document->ParagraphStyles()->Add("Amount")->Format()->SetAlign(dwAlignRight);
    auto section = document->AddSection();
    section->AddParagraph("Title", "Receipt " + std::to_string(order));
    section->AddParagraph("", "For " + customer);
    for (int line = 1; line <= 3; ++line) {
        auto row = section->AddTable();
        row->AddCell()->SetWidth(8_cm);
        row->CurrentCell()->AddParagraph("", "Item " + std::to_string(line));
        row->AddCell()->SetWidth(3_cm);
        row->CurrentCell()->AddParagraph("Amount", std::to_string(order * line) + ".00 €");
    }
    std::ostringstream bytes;
    document->FinishTo(bytes);
    return bytes.str();
}
// [document]

// [handler]
void Answer(const httplib::Request& request, httplib::Response& response) {
    const int order = std::stoi(request.matches[1]);
    response.set_content(MakeReceipt(request.get_param_value("for"), order), "application/rtf");
}
// [handler]

constexpr int Clients = 4, Requests = 250;

/// Asks for receipts and gives the last; each must be the one that was asked for.
std::string Ask(int port, int client) {
    httplib::Client server("127.0.0.1", port);
    server.set_keep_alive(true);
    server.set_tcp_nodelay(true);
    std::string last;
    for (int i = 0; i < Requests; ++i) {
        const int order = client * Requests + i;
        const auto reply = server.Get("/receipt/" + std::to_string(order) + "?for=%C5%81ucja");
        if (!reply || reply->status != 200 || reply->body != MakeReceipt("Łucja", order))
            throw std::runtime_error("receipt " + std::to_string(order) + " is not right");
        last = reply->body;
    }
    return last;
}

void Serve(const std::string& filename) {
    httplib::Server server;
    server.set_keep_alive_timeout(1);  // so that it ends soon
    server.set_tcp_nodelay(true);
    server.Get(R"(/receipt/(\d+))", Answer);
    const int port = server.bind_to_any_port("127.0.0.1");
    std::thread listening([&] { server.listen_after_bind(); });
    std::vector<std::future<std::string>> clients;
    for (int client = 0; client < Clients; ++client)
        clients.push_back(std::async(std::launch::async, Ask, port, client));
    std::exception_ptr failure;
    std::string last;
    for (auto& client : clients) {
        try {
            last = client.get();
        } catch (...) {
            failure = std::current_exception();
        }
    }
    server.stop();
    listening.join();
    if (failure != nullptr) std::rethrow_exception(failure);
    std::ofstream(filename, std::ios::binary) << last;
}

}  // namespace

int main(int argc, char** argv) {
    if (argc != 2) {
        std::cerr << "usage: http_server OUTPUT.rtf\n";
        return 2;
    }
    try {
        Serve(argv[1]);
    } catch (const std::exception& error) {
        std::cerr << "http_server: " << error.what() << '\n';
        return 1;
    }
}
