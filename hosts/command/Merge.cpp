#include "hosts/command/Merge.h"
#include "hosts/command/Text.h"

#include <algorithm>
#include <atomic>
#include <chrono>
#include <cstdio>
#include <future>
#include <mutex>
#include <thread>
#include <unistd.h>
#include <unordered_set>
#ifdef __GLIBC__
#include <malloc.h>
#endif

namespace draftwick::command {

namespace {

using Clock = std::chrono::steady_clock;

/// What became of the rows, and a line on a terminal that says so. Threads share it.
class Progress {
public:
    explicit Progress(bool shown) : shown_(shown && isatty(STDERR_FILENO) != 0) {}

    /// Counts rows; the share is that of the data that was read, 0 when nobody knows.
    void Done(std::int64_t rows, double share) {
        const std::lock_guard lock(mutex_);
        done_ += rows;
        const Clock::time_point now = Clock::now();
        if (!shown_ || now < next_) return;
        next_ = now + std::chrono::milliseconds(100);
        constexpr int Width = 30;
        std::string bar;
        for (int i = 0; share > 0 && i < Width; ++i) bar += i < share * Width ? '#' : '.';
        if (share > 0) bar = '[' + bar + "] ";
        std::fprintf(stderr, "\r%s%s", bar.c_str(), Count("rows").c_str());
    }

    void Fail(std::int64_t row, const Place& place, const std::string& what) {
        const std::lock_guard lock(mutex_);
        failed_.push_back(row);
        Print(place.Text() + ": error: row " + std::to_string(row) + ": " + what);
    }

    /// How many rows failed; says so.
    std::int64_t Summarize() {
        std::sort(failed_.begin(), failed_.end());
        constexpr std::size_t MostNamed = 20;
        std::string text = Count("rows written") + ", " + std::to_string(failed_.size()) + " failed";
        for (std::size_t i = 0; i < std::min(failed_.size(), MostNamed); ++i)
            text += (i == 0 ? ": row " : ", ") + std::to_string(failed_[i]);
        if (failed_.size() > MostNamed) text += ", ...";
        if (shown_ || !failed_.empty()) Print(text);
        return static_cast<std::int64_t>(failed_.size());
    }

private:
    /// "10 rows, 500 a second"
    std::string Count(const char* what) const {
        const double seconds = std::chrono::duration<double>(Clock::now() - start_).count();
        const auto rate = static_cast<std::int64_t>(static_cast<double>(done_) / std::max(seconds, 0.001));
        return std::to_string(done_) + ' ' + what + ", " + std::to_string(rate) + " a second";
    }
    void Print(const std::string& line) const {
        std::fprintf(stderr, "%s%s\n", shown_ ? "\r\033[K" : "", line.c_str());
    }

    const bool shown_;
    std::mutex mutex_;
    const Clock::time_point start_ = Clock::now();
    Clock::time_point next_ = start_;
    std::int64_t done_ = 0;
    std::vector<std::int64_t> failed_;
};

/// A value as a part of a file's name.
std::string Harmless(std::string name) {
    constexpr std::string_view Refused = "/\\:*?\"<>|";
    for (char& letter : name) {
        if (static_cast<unsigned char>(letter) < ' ' || Refused.find(letter) != Refused.npos) letter = '_';
    }
    if (name.starts_with('.')) name[0] = '_';
    return name;
}

/// "letters/{name}.rtf" for a row. {row} is its number.
std::string OutputOf(const std::string& pattern, const Row& row) {
    return Replaced(pattern, "{", "}", [&](std::string_view column) {
        const Datum* value = row.data.Find(column);
        if (value == nullptr && column == "row") return std::to_string(row.number);
        if (value == nullptr)
            Refuse("the name of the output has {" + std::string{column} + "}; "
                   + Alternatives(column, row.data.Names()));
        if (value->text.empty())
            Refuse("no value for {" + std::string{column} + "} in the name of the output");
        return Harmless(value->text);
    });
}

class Merger {
public:
    Merger(const Manuscript& manuscript, const Style& style, const Options& options)
        : manuscript_(manuscript), style_(style), options_(options), input_(options.data),
          rows_(OpenRows(input_)), progress_(!options.quiet) {}

    std::int64_t Run() {
        options_.ManyFiles() ? WriteMany() : WriteOne();
        return progress_.Summarize();
    }

private:
    void WriteMany() {
#ifdef __GLIBC__
        // What a document frees is what the next one needs.
        mallopt(M_TRIM_THRESHOLD, 1 << 24);
#endif
        const unsigned processors = std::max(1U, std::thread::hardware_concurrency());
        std::vector<std::future<void>> threads(options_.jobs > 0 ? options_.jobs : processors);
        for (auto& thread : threads) {
            thread = std::async(std::launch::async, [this] {
                Work([this](const Row& row) {
                    WriteDocument(manuscript_, style_, options_, row.output, &row.data);
                });
            });
        }
        // All have ended before what one has thrown goes on.
        for (auto& thread : threads) thread.wait();
        for (auto& thread : threads) thread.get();
    }

    void WriteOne() {
        const auto document = NewDocument(options_, &style_, options_.output);
        Extras extras = options_.extras;
        extras.manyRows = true;
        Writer writer(manuscript_, style_, extras, document);
        Work([&](const Row& row) {
            // Once a part of a row is in the document, the document stands or falls with it.
            if (options_.goOn)
                Writer(manuscript_, style_, extras, NewDocument(options_, &style_, {})).Write(&row.data);
            writer.Write(&row.data);
        });
        if (!stopped_) Deliver(*document, options_.output);
    }

    /// Writes rows until there are no more. One that fails is reported, and the last unless the others are wanted all
    /// the same.
    template <class Write>
    void Work(const Write& write) {
        double share = 0;
        for (std::vector<Row> batch; !(batch = Take(share)).empty();) {
            std::int64_t written = 0;
            for (const Row& row : batch) {
                if (stopped_) break;
                try {
                    if (!row.fault.empty()) Refuse(row.fault);
                    write(row);
                    ++written;
                } catch (const std::exception& error) {
                    progress_.Fail(row.number, {input_.Name(), row.line}, Explain(error));
                    if (!options_.goOn) stopped_ = true;
                }
            }
            progress_.Done(written, share);
        }
    }

    /// The next rows, and the share of the data up to there. Empty at the end.
    std::vector<Row> Take(double& share) {
        constexpr std::size_t Most = 16;
        const std::lock_guard lock(reading_);
        std::vector<Row> batch;
        Row row;
        try {
            while (!stopped_ && !ended_ && batch.size() < Most) {
                ended_ = !rows_->Next(row);
                if (ended_) break;
                NameOutput(row);
                batch.push_back(std::move(row));
            }
        } catch (...) {
            stopped_ = true;
            throw;
        }
        share = std::min(input_.Share(), 1.0);
        return batch;
    }

    /// In the order of the rows, so that of two of a name it is always the first that gets it.
    void NameOutput(Row& row) {
        if (!row.fault.empty() || !options_.ManyFiles()) return;
        try {
            row.output = OutputOf(options_.output, row);
            if (!outputs_.insert(row.output).second)
                row.fault = "an earlier row was written to " + row.output;
        } catch (const std::invalid_argument& error) {
            row.fault = error.what();
        }
    }

    const Manuscript& manuscript_;
    const Style& style_;
    const Options& options_;
    std::mutex reading_;  // the four below
    Input input_;
    std::unique_ptr<Rows> rows_;
    bool ended_ = false;
    std::unordered_set<std::string> outputs_;
    Progress progress_;
    std::atomic<bool> stopped_ = false;
};

}  // namespace

std::int64_t Merge(const Manuscript& manuscript, const Style& style, const Options& options) {
    return Merger(manuscript, style, options).Run();
}

}  // namespace draftwick::command
