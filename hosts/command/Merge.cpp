#include "hosts/command/Merge.h"

#include <algorithm>
#include <atomic>
#include <cerrno>
#include <chrono>
#include <condition_variable>
#include <cstdio>
#include <deque>
#include <fstream>
#include <iostream>
#include <mutex>
#include <system_error>
#include <thread>
#include <unistd.h>
#include <unordered_set>

namespace draftwick::command {

namespace {

using Clock = std::chrono::steady_clock;

/// Rows on their way from the reader to the threads, some at a time.
class Queue {
public:
    using Batch = std::vector<Row>;

    /// False once nobody wants more.
    bool Put(Batch&& batch) {
        constexpr std::size_t Most = 64;
        std::unique_lock lock(mutex_);
        changed_.wait(lock, [this] { return batches_.size() < Most || closed_; });
        if (closed_) return false;
        batches_.push_back(std::move(batch));
        changed_.notify_all();
        return true;
    }
    /// Empty once there are no more.
    Batch Take() {
        std::unique_lock lock(mutex_);
        changed_.wait(lock, [this] { return !batches_.empty() || closed_; });
        if (batches_.empty()) return {};
        Batch batch = std::move(batches_.front());
        batches_.pop_front();
        changed_.notify_all();
        return batch;
    }
    /// No more are put; with `drop`, those that wait are not wanted either.
    void Close(bool drop) {
        const std::lock_guard lock(mutex_);
        closed_ = true;
        if (drop) batches_.clear();
        changed_.notify_all();
    }

private:
    std::mutex mutex_;
    std::condition_variable changed_;
    std::deque<Batch> batches_;
    bool closed_ = false;
};

/// What became of the rows, and a line on a terminal that says so.
class Progress {
public:
    explicit Progress(bool shown) : shown_(shown && isatty(STDERR_FILENO) != 0) {}

    void Done(std::int64_t rows) {
        const std::lock_guard lock(mutex_);
        done_ += rows;
        const Clock::time_point now = Clock::now();
        if (!shown_ || now < next_) return;
        next_ = now + std::chrono::milliseconds(100);
        constexpr int Width = 30;
        const int filled = static_cast<int>(share_ * Width);
        std::string line = share_ > 0
                               ? "\r[" + std::string(static_cast<std::size_t>(filled), '#')
                                     + std::string(static_cast<std::size_t>(Width - filled), '.') + "] "
                               : "\r";
        std::fprintf(stderr, "%s%lld rows, %.0f a second", line.c_str(), static_cast<long long>(done_),
                     Rate());
    }
    void Read(double share) {
        const std::lock_guard lock(mutex_);
        share_ = std::min(share, 1.0);
    }
    void Fail(const Row& row, const std::string& file, const std::string& what) {
        const std::lock_guard lock(mutex_);
        constexpr std::size_t MostNamed = 20;
        if (failed_.size() < MostNamed) failed_.push_back(row.number);
        ++failures_;
        const std::string place = Place{file, row.line}.Text();
        std::fprintf(stderr, "%s%s: error: row %lld: %s\n", shown_ ? "\r\033[K" : "", place.c_str(),
                     static_cast<long long>(row.number), what.c_str());
    }
    std::int64_t Failures() const { return failures_; }

    void Summarize() {
        if (!shown_ && failures_ == 0) return;
        std::string failed;
        std::sort(failed_.begin(), failed_.end());
        for (const std::int64_t row : failed_)
            failed += (failed.empty() ? ": row " : ", ") + std::to_string(row);
        if (static_cast<std::size_t>(failures_) > failed_.size()) failed += ", ...";
        std::fprintf(stderr, "%s%lld rows written, %.0f a second, %lld failed%s\n", shown_ ? "\r\033[K" : "",
                     static_cast<long long>(done_), Rate(), static_cast<long long>(failures_),
                     failed.c_str());
    }

private:
    double Rate() const {
        const double seconds = std::chrono::duration<double>(Clock::now() - start_).count();
        return static_cast<double>(done_) / std::max(seconds, 0.001);
    }

    const bool shown_;
    std::mutex mutex_;
    Clock::time_point start_ = Clock::now(), next_ = start_;
    double share_ = 0;  // of the data that was read
    std::int64_t done_ = 0, failures_ = 0;
    std::vector<std::int64_t> failed_;
};

/// A value as a part of a file's name.
std::string Harmless(std::string_view value) {
    constexpr std::string_view Refused = "/\\:*?\"<>|";
    std::string name{value};
    for (char& letter : name) {
        if (static_cast<unsigned char>(letter) < ' ' || Refused.find(letter) != Refused.npos) letter = '_';
    }
    if (name.starts_with('.')) name[0] = '_';
    return name;
}

/// "letters/{name}.rtf" for a row. {row} is its number.
std::string OutputOf(const std::string& pattern, const Row& row) {
    std::string name;
    for (std::string_view rest = pattern; !rest.empty();) {
        const std::size_t close = rest[0] == '{' ? rest.find('}') : rest.npos;
        if (close == rest.npos) {
            name += rest[0];
            rest.remove_prefix(1);
            continue;
        }
        const std::string_view column = rest.substr(1, close - 1);
        const Datum* value = row.data.Find(column);
        if (value == nullptr && column != "row") {
            std::vector<std::string_view> names;
            for (const auto& member : row.data.members) names.push_back(member.first);
            throw std::invalid_argument("the name of the output has {" + std::string{column} + "}; "
                                        + Alternatives(column, names));
        }
        const std::string part = value == nullptr ? std::to_string(row.number) : Harmless(value->text);
        if (part.empty())
            throw std::invalid_argument("no value for {" + std::string{column}
                                        + "} in the name of the output");
        name += part;
        rest.remove_prefix(close + 1);
    }
    return name;
}

class Merger {
public:
    Merger(const Manuscript& manuscript, const Style& style, const Options& options)
        : manuscript_(manuscript), style_(style), options_(options), progress_(!options.quiet) {}

    std::int64_t Run() {
        options_.ManyFiles() ? RunMany() : RunOne();
        progress_.Summarize();
        return progress_.Failures();
    }

private:
    void RunMany() {
        const unsigned count =
            options_.jobs > 0 ? options_.jobs : std::max(1U, std::thread::hardware_concurrency());
        std::vector<std::jthread> threads;
        const auto end = [this](bool drop) { queue_.Close(drop); };
        try {
            for (unsigned i = 0; i < count; ++i) threads.emplace_back([this] { Work(); });
            constexpr std::size_t BatchSize = 16;
            Queue::Batch batch;
            ReadRows([&](Row&& row) {
                NameOutput(row);
                batch.push_back(std::move(row));
                return batch.size() < BatchSize || queue_.Put(std::exchange(batch, {}));
            });
            if (!batch.empty()) queue_.Put(std::move(batch));
        } catch (...) {
            end(true);
            throw;
        }
        end(false);
        threads.clear();
    }

    void Work() {
        for (Queue::Batch batch; !(batch = queue_.Take()).empty();) {
            std::int64_t written = 0;
            for (const Row& row : batch) {
                if (stopped_) return;
                written += Try(row, [&] { WriteFile(row); });
            }
            progress_.Done(written);
        }
    }

    /// In the order of the rows, so that of two of a name it is always the first that gets it.
    void NameOutput(Row& row) {
        if (!row.fault.empty()) return;
        try {
            row.output = OutputOf(options_.output, row);
            if (!outputs_.insert(row.output).second)
                row.fault = "an earlier row was written to " + row.output;
        } catch (const std::invalid_argument& error) {
            row.fault = error.what();
        }
    }

    void WriteFile(const Row& row) {
        const auto document = NewDocument(options_, &style_, row.output);
        Writer(manuscript_, style_, options_.extras, document).Write(&row.data);
        Deliver(*document, row.output);
    }

    void RunOne() {
        const auto document = NewDocument(options_, &style_, options_.output);
        Extras extras = options_.extras;
        extras.manyRows = true;
        Writer writer(manuscript_, style_, extras, document);
        ReadRows([&](Row&& row) {
            const bool written = Try(row, [&] {
                // Once a part of a row is in the document, the document stands or falls with it.
                if (options_.goOn)
                    Writer(manuscript_, style_, options_.extras, NewDocument(options_, &style_, {}))
                        .Write(&row.data);
                writer.Write(&row.data);
            });
            progress_.Done(written);
            return !stopped_;
        });
        if (!stopped_) Deliver(*document, options_.output);
    }

    /// Whether a row was written. One that fails is reported, and the last unless the others are wanted all the same.
    template <class Write>
    bool Try(const Row& row, const Write& write) {
        try {
            if (!row.fault.empty()) throw std::invalid_argument(row.fault);
            write();
            return true;
        } catch (const std::exception& error) {
            progress_.Fail(row, DataName(), Explain(error));
            if (!options_.goOn) {
                stopped_ = true;
                queue_.Close(true);
            }
            return false;
        }
    }

    void ReadRows(const RowSink& sink) {
        std::ifstream file;
        double size = 0;
        if (options_.data != "-") {
            file.open(options_.data, std::ios::binary | std::ios::ate);
            if (!file || !file.seekg(0)) throw Failure({options_.data}, "cannot be read");
            file.seekg(0, std::ios::end);
            size = static_cast<double>(file.tellg());
            file.seekg(0);
        }
        std::istream& input = options_.data == "-" ? std::cin : file;
        const int first = (input >> std::ws).peek();
        const auto read = first == '[' || first == '{' ? ReadJsonRows : ReadCsv;
        read(input, DataName(), [&](Row&& row) {
            if (size > 0 && row.number % 256 == 0) progress_.Read(static_cast<double>(input.tellg()) / size);
            return sink(std::move(row));
        });
    }

    std::string DataName() const { return options_.data == "-" ? "<stdin>" : options_.data; }

    const Manuscript& manuscript_;
    const Style& style_;
    const Options& options_;
    Progress progress_;
    Queue queue_;
    std::atomic<bool> stopped_ = false;
    std::unordered_set<std::string> outputs_;
};

struct Paper {
    std::string_view name;
    dwPaperSize size;
};
constexpr Paper papers[] = {{"a3", dwPaperA3},
                            {"a4", dwPaperA4},
                            {"a5", dwPaperA5},
                            {"letter", dwPaperLetter},
                            {"legal", dwPaperLegal}};

void SetPage(Document& document, const std::string& page) {
    for (const Paper& paper : papers) {
        if (paper.name != page) continue;
        document.SetPaperSize(paper.size);
        return;
    }
    const std::size_t by = page.find('x');
    try {
        document.SetPageWidth(Inches(page.substr(0, by)));
        document.SetPageHeight(Inches(by == page.npos ? "" : page.substr(by + 1)));
    } catch (const std::exception&) {
        throw UsageError("--page is a3, a4, a5, letter, legal or WIDTHxHEIGHT as in 20cmx15cm, not \"" + page
                         + '"');
    }
}

}  // namespace

std::shared_ptr<Document> NewDocument(const Options& options, const Style* style, const std::string& output) {
    auto document = Document::Create();
    document->SetSpelling(options.classic ? dwSpellingClassic : dwSpellingStandard);
    document->SetDiscardOnRelease(true);
    // A row of many is small.
    document->SetBodyInMemory(options.ManyFiles());
    // A name of less than four characters is refused.
    if (output != "-") document->SetFilename(output.size() < 4 && !output.empty() ? "././" + output : output);
    if (style != nullptr) style->Prepare(document);
    document->SetScaleMode(dwInches);
    if (!options.page.empty()) SetPage(*document, options.page);
    return document;
}

void Deliver(Document& document, const std::string& output) {
    if (output != "-") {
        document.Finish();
        return;
    }
    const auto check = [](bool written) {
        if (!written) throw std::system_error(errno, std::generic_category(), "cannot write standard output");
    };
    document.FinishTo([&](std::string_view bytes) {
        check(std::fwrite(bytes.data(), 1, bytes.size(), stdout) == bytes.size());
    });
    check(std::fflush(stdout) == 0);
}

std::int64_t Merge(const Manuscript& manuscript, const Style& style, const Options& options) {
    return Merger(manuscript, style, options).Run();
}

}  // namespace draftwick::command
