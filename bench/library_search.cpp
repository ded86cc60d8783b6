// Measures searches of a library: the time from the words to the books and positions of the first
// 20 pages, without reading the pages.
//
//     folvero-bench-library LIBRARY QUERY...

#include "base/PlatformException.h"
#include "base/Stopwatch.h"
#include "library/search/LibrarySearch.h"
#include "library/search/SearchSegments.h"
#include "system/FileDescriptor.h"

#include <QCoreApplication>
#include <QFile>
#include <algorithm>
#include <array>
#include <cstdio>
#include <ctime>
#include <fcntl.h>

namespace {

constexpr std::size_t rounds = 9;

// Makes the system read the index from the disk again.
void forget(const LibraryLayout& library) {
    for (int segment = 0; segment < SearchSegments::count; ++segment) {
        const QByteArray name = QFile::encodeName(SearchSegments::file(library, segment));
        const FileDescriptor file(::open(name.constData(), O_RDONLY | O_CLOEXEC));
        ::posix_fadvise(file.number(), 0, 0, POSIX_FADV_DONTNEED);
    }
}

// Milliseconds that this thread has used: on a busy machine the clock says little.
double processorTime() {
    timespec time{};
    ::clock_gettime(CLOCK_THREAD_CPUTIME_ID, &time);
    return double(time.tv_sec) * 1e3 + double(time.tv_nsec) / 1e6;
}

void measure(const LibraryLayout& library, const QString& typed) {
    const SearchQuery query(typed);
    double cold = 0;
    {
        forget(library);
        Stopwatch watch;
        LibrarySearch(library).find(query, {});
        cold = 1000 * watch.lap();
    }
    LibrarySearch search(library);
    search.find(query, {});
    std::array<double, rounds> times{};
    LibrarySearch::Answer answer;
    const double begin = processorTime();
    for (double& time : times) {
        Stopwatch watch;
        answer = search.find(query, {});
        time = 1000 * watch.lap();
    }
    const double processor = (processorTime() - begin) / rounds;
    std::sort(times.begin(), times.end());
    std::printf("| %s | %lld%s | %.1f ms | %.1f ms | %.0f ms |\n", qPrintable(typed),
                static_cast<long long>(answer.count), answer.isMore ? "+" : "", processor,
                times[rounds / 2], cold);
}

} // namespace

int main(int argc, char** argv) {
    const QCoreApplication app(argc, argv);
    std::printf("| query | pages | processor time | median | cold, with opening |\n"
                "| --- | ---: | ---: | ---: | ---: |\n");
    try {
        for (int i = 2; i < argc; ++i)
            measure(LibraryLayout(QString::fromLocal8Bit(argv[1])), QString::fromUtf8(argv[i]));
    } catch (const PlatformException& failure) {
        std::fprintf(stderr, "%s\n", qPrintable(failure.reason()));
        return 1;
    }
    return 0;
}
