#include "print_bench.h"

#include "platform/qt/page_painter.h"
#include "print/page.h"
#include "sample.h"

#include <QBuffer>
#include <QPdfWriter>

#include <benchmark/benchmark.h>

#include <filesystem>

namespace mirtane::bench {
namespace {

using benchmark::State;

constexpr double twipsPerInch = 1440;
constexpr int dotsPerInch = 600;

struct PrintBench {
    PrintBench()
    {
        fillWithLines(*session);
        changeStat(session->store, Stat::on, Stat::sel);
        session->pageWidth = printer.pageWidth();
        session->pageHeight = printer.pageHeight();
    }

    std::unique_ptr<Session> session = std::make_unique<Session>();
    PdfPrinter printer{QPageSize(QPageSize::A4)};
    std::string file = (std::filesystem::temp_directory_path() / "mirtane-bench.pdf").string();
};

PrintBench& printBench()
{
    static PrintBench bench;
    return bench;
}

void page(State& state)
{
    PrintBench& b = printBench();
    for (auto _ : state) {
        if (!b.printer.beginPage({b.file, {}})) state.SkipWithError("no page");
        drawPage(b.session->store, pageMapping(*b.session, b.session->store), b.session->pageHeight,
                 b.printer);
        if (!b.printer.endPage()) state.SkipWithError("no file");
    }
    std::filesystem::remove(b.file);
}

void plainPage(State& state)
{
    PrintBench& b = printBench();
    const EntityStore& store = b.session->store;
    for (auto _ : state) {
        QByteArray bytes;
        QBuffer buffer(&bytes);
        buffer.open(QIODevice::WriteOnly);
        QPdfWriter writer(&buffer);
        writer.setPageSize(QPageSize(QPageSize::A4));
        writer.setPageMargins(QMarginsF(0, 0, 0, 0));
        writer.setResolution(dotsPerInch);
        QPainter painter(&writer);
        const PageMapping mapping = pageMapping(*b.session, store);
        const double dots = dotsPerInch / twipsPerInch;
        for (std::int32_t i = 1; i < store.end(); ++i) {
            const Point from = store.p1[EntityStore::at(i)];
            const Point to = store.p2[EntityStore::at(i)];
            painter.setPen(QPen(Qt::black, i % 8 + 1, Qt::SolidLine, Qt::FlatCap, Qt::RoundJoin));
            painter.drawLine(QPointF(mapping.x(from.x) * dots, mapping.y(from.y) * dots),
                             QPointF(mapping.x(to.x) * dots, mapping.y(to.y) * dots));
        }
        painter.end();
        benchmark::DoNotOptimize(bytes);
    }
}

} // namespace

void registerPrintMeasures()
{
    benchmark::RegisterBenchmark("a page of 60,000 lines", page)->Unit(benchmark::kMillisecond);
    benchmark::RegisterBenchmark("the toolkit's own page", plainPage)->Unit(benchmark::kMillisecond);
}

std::span<const Comparison> printComparisons()
{
    static constexpr Comparison rows[] = {{"a page of 60,000 lines", "the toolkit's own page", 1.3}};
    return rows;
}

} // namespace mirtane::bench
