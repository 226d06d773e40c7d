// Writing a tree-dump-shaped document: one root holding 1M elements, each
// with three child values (a number, a flag, a text), a tenth of the texts
// needing escapes. Our writer against libxml2's xmlTextWriter to a memory
// buffer, pugixml building a document and saving it as UTF-16, and a bare
// vu::String append loop of the same output (pre-escaped pieces) as the
// ceiling. Every library gets its input in its own form, prepared untimed.
//
// Where the first touch of fresh memory is expensive (page faults in a
// sandbox), it outweighs the writing itself and favours whoever writes fewer
// bytes (libxml2 writes UTF-8). So by default freed memory is kept in the
// heap and reused from one iteration to the next for every contender alike;
// VU_BENCH_COLD_MEMORY=1 leaves the allocator as it is.
#include "support/Heap.h"
#include "text/XmlWriter.h"

#include <benchmark/benchmark.h>
#include <libxml/xmlwriter.h>
#include <pugixml.hpp>

#include <charconv>
#include <cstdio>
#include <cstdlib>
#include <string>
#include <vector>

namespace {

constexpr long kElements = 1000000;
constexpr size_t kTextPool = 1000;

std::string Narrow(vu::StringView s) {
    std::string out;
    for (WCHAR c : s) {
        if (c < 0x80) {
            out += static_cast<char>(c);
        } else if (c < 0x800) {
            out += static_cast<char>(0xC0 | c >> 6);
            out += static_cast<char>(0x80 | (c & 0x3F));
        } else {
            out += static_cast<char>(0xE0 | c >> 12);
            out += static_cast<char>(0x80 | (c >> 6 & 0x3F));
            out += static_cast<char>(0x80 | (c & 0x3F));
        }
    }
    return out;
}

vu::String Escaped(vu::StringView s) {
    vu::String out;
    for (WCHAR c : s) {
        switch (c) {
        case VU_T('&'):
            out += VU_T("&amp;");
            break;
        case VU_T('<'):
            out += VU_T("&lt;");
            break;
        case VU_T('>'):
            out += VU_T("&gt;");
            break;
        case VU_T('\''):
            out += VU_T("&apos;");
            break;
        case VU_T('"'):
            out += VU_T("&quot;");
            break;
        default:
            out += c;
        }
    }
    return out;
}

// Row texts as a controller program's tree shows them; every tenth needs
// escapes.
struct Texts {
    std::vector<AF_GString> wide;
    std::vector<vu::String> escaped;
    std::vector<std::string> utf8;
    Texts() {
        static const WCHAR* const plain[] = {
            VU_T("MainTask"), VU_T("Routine_Conveyor_Start"), VU_T("Motor speed set point"),
            VU_T("Tag\u00e4nderung Z\u00e4hler"), VU_T("Alarm_Overtemperature_03")};
        static const WCHAR* const special[] = {
            VU_T("Speed < Limit && Run"), VU_T("Comment \"main\" > 3"), VU_T("Rung's <output>")};
        for (size_t i = 0; i < kTextPool; ++i) {
            const vu::String base = i % 10 == 0 ? special[i / 10 % 3] : plain[i % 5];
            const vu::String text = base + VU_T(" ") + vu::String(1, VU_T('A') + i % 26);
            wide.emplace_back(text);
            escaped.push_back(Escaped(text));
            utf8.push_back(Narrow(text));
        }
    }
};

const Texts& TheTexts() {
    static const Texts texts;
    return texts;
}

void AppendNumber(vu::String& out, long value) {
    char digits[24];
    const auto end = std::to_chars(digits, digits + sizeof digits, value).ptr;
    for (const char* p = digits; p != end; ++p)
        out += static_cast<WCHAR>(*p);
}

void WriteVu(VU_CXmlWriter& w) {
    static const AF_GString root(VU_T("HbxTreeList")), node(VU_T("HbxListNode")), id(VU_T("id")),
        expanded(VU_T("expanded")), text(VU_T("text"));
    const Texts& texts = TheTexts();
    w.WriteStartElement(root);
    for (long i = 0; i < kElements; ++i) {
        w.WriteStartElement(node);
        w.WriteStartElement(id);
        w.WriteElementValue(i);
        w.WriteEndElement();
        w.WriteStartElement(expanded);
        w.WriteElementValue(i % 3 == 0);
        w.WriteEndElement();
        w.WriteStartElement(text);
        w.WriteElementString(texts.wide[i % kTextPool]);
        w.WriteEndElement();
        w.WriteEndElement();
    }
    w.WriteEndElement();
}

vu::String WriteBare() {
    const Texts& texts = TheTexts();
    vu::String out;
    out += VU_T("<HbxTreeList>");
    for (long i = 0; i < kElements; ++i) {
        out += VU_T("<HbxListNode><id>");
        AppendNumber(out, i);
        out += VU_T("</id><expanded>");
        out += i % 3 == 0 ? VU_T("true") : VU_T("false");
        out += VU_T("</expanded><text>");
        out += texts.escaped[i % kTextPool];
        out += VU_T("</text></HbxListNode>");
    }
    out += VU_T("</HbxTreeList>");
    return out;
}

void Report(benchmark::State& state, size_t outputBytes) {
    state.SetItemsProcessed(state.iterations() * kElements);
    state.counters["output_MB"] = static_cast<double>(outputBytes) / 1e6;
}

void BM_VuXmlWriter(benchmark::State& state) {
    size_t bytes = 0;
    for (auto _ : state) {
        VU_CXmlWriter w;
        WriteVu(w);
        benchmark::DoNotOptimize(w.GetOutput().data());
        bytes = w.GetOutput().size() * 2;
    }
    Report(state, bytes);
}

// The same, taking the text out with ToString (one more copy).
void BM_VuXmlWriterToString(benchmark::State& state) {
    size_t bytes = 0;
    for (auto _ : state) {
        VU_CXmlWriter w;
        WriteVu(w);
        const AF_GString out = w.ToString();
        benchmark::DoNotOptimize(out.data());
        bytes = out.size() * 2;
    }
    Report(state, bytes);
}

void BM_Libxml2TextWriter(benchmark::State& state) {
    const Texts& texts = TheTexts();
    size_t bytes = 0;
    for (auto _ : state) {
        xmlBufferPtr buffer = xmlBufferCreate();
        xmlTextWriterPtr w = xmlNewTextWriterMemory(buffer, 0);
        xmlTextWriterStartElement(w, BAD_CAST "HbxTreeList");
        char digits[24];
        for (long i = 0; i < kElements; ++i) {
            xmlTextWriterStartElement(w, BAD_CAST "HbxListNode");
            *std::to_chars(digits, digits + sizeof digits - 1, i).ptr = 0;
            xmlTextWriterWriteElement(w, BAD_CAST "id", BAD_CAST digits);
            xmlTextWriterWriteElement(w, BAD_CAST "expanded",
                                      BAD_CAST(i % 3 == 0 ? "true" : "false"));
            xmlTextWriterWriteElement(w, BAD_CAST "text",
                                      BAD_CAST texts.utf8[i % kTextPool].c_str());
            xmlTextWriterEndElement(w);
        }
        xmlTextWriterEndElement(w);
        xmlTextWriterFlush(w);
        benchmark::DoNotOptimize(xmlBufferContent(buffer));
        bytes = static_cast<size_t>(xmlBufferLength(buffer));
        xmlFreeTextWriter(w);
        xmlBufferFree(buffer);
    }
    Report(state, bytes);
}

struct StringSink : pugi::xml_writer {
    std::string bytes;
    void write(const void* data, size_t size) override {
        bytes.append(static_cast<const char*>(data), size);
    }
};

void BM_PugixmlUtf16(benchmark::State& state) {
    const Texts& texts = TheTexts();
    size_t bytes = 0;
    for (auto _ : state) {
        pugi::xml_document doc;
        pugi::xml_node root = doc.append_child("HbxTreeList");
        for (long i = 0; i < kElements; ++i) {
            pugi::xml_node node = root.append_child("HbxListNode");
            node.append_child("id").text().set(i);
            node.append_child("expanded").text().set(i % 3 == 0);
            node.append_child("text").text().set(texts.utf8[i % kTextPool].c_str());
        }
        StringSink sink;
        doc.save(sink, "", pugi::format_raw | pugi::format_no_declaration, pugi::encoding_utf16_le);
        benchmark::DoNotOptimize(sink.bytes.data());
        bytes = sink.bytes.size();
    }
    Report(state, bytes);
}

void BM_BareAppendLoop(benchmark::State& state) {
    size_t bytes = 0;
    for (auto _ : state) {
        const vu::String out = WriteBare();
        benchmark::DoNotOptimize(out.data());
        bytes = out.size() * 2;
    }
    Report(state, bytes);
}

// The writer and the ceiling must produce the same text, or the ratio means
// nothing.
bool SameOutput() {
    VU_CXmlWriter w;
    WriteVu(w);
    return w.GetOutput() == WriteBare();
}

} // namespace

BENCHMARK(BM_VuXmlWriter)->Unit(benchmark::kMillisecond);
BENCHMARK(BM_VuXmlWriterToString)->Unit(benchmark::kMillisecond);
BENCHMARK(BM_Libxml2TextWriter)->Unit(benchmark::kMillisecond);
BENCHMARK(BM_PugixmlUtf16)->Unit(benchmark::kMillisecond);
BENCHMARK(BM_BareAppendLoop)->Unit(benchmark::kMillisecond);

int main(int argc, char** argv) {
    vu::bench::KeepFreedMemory();
    if (!SameOutput()) {
        std::fprintf(stderr, "writer output differs from the append loop\n");
        return 1;
    }
    benchmark::Initialize(&argc, argv);
    if (benchmark::ReportUnrecognizedArguments(argc, argv))
        return 1;
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
    return 0;
}
