// The long document of Workload.cpp by other libraries: as a workbook (libxlsxwriter, in constant memory) and as a PDF
// (libharu, which keeps it in memory).
//
// usage: draftwick_peers xlsx|pdf PARAGRAPHS FILE
#include <hpdf.h>
#include <xlsxwriter.h>

#include <cstdio>
#include <cstdlib>
#include <string>
#include <string_view>

namespace {

/// "Line 000042 plain run, "
std::string Numbered(const char* before, long number, const char* after) {
    char text[64];
    std::snprintf(text, sizeof text, "%s%06ld%s", before, number, after);
    return text;
}

constexpr const char* Cells[] = {" A", " B", " C", " D"};

int WriteWorkbook(long paragraphs, const char* file) {
    lxw_workbook_options options{};
    options.constant_memory = LXW_TRUE;
    lxw_workbook* workbook = workbook_new_opt(file, &options);
    lxw_worksheet* sheet = workbook_add_worksheet(workbook, nullptr);
    lxw_format* bold = workbook_add_format(workbook);
    format_set_bold(bold);
    lxw_format* red = workbook_add_format(workbook);
    format_set_font_color(red, 0xC80000);
    lxw_row_t row = 0;
    for (long i = 1; i <= paragraphs; ++i) {
        std::string text = Numbered("Line ", i, " plain run, ");
        char boldText[] = "bold run of this one, ", redText[] = "red end of para.";
        lxw_rich_string_tuple plainRun{nullptr, text.data()}, boldRun{bold, boldText}, redRun{red, redText};
        lxw_rich_string_tuple* runs[] = {&plainRun, &boldRun, &redRun, nullptr};
        worksheet_write_rich_string(sheet, row++, 0, runs, nullptr);
        if (i % 10 != 0) continue;
        for (lxw_col_t column = 0; column < 4; ++column)
            worksheet_write_string(sheet, row, column, Numbered("Cell ", i, Cells[column]).c_str(), nullptr);
        ++row;
    }
    return workbook_close(workbook) == LXW_NO_ERROR ? 0 : 1;
}

/// Lines of text on A4, without a wish for anything that RTF has and lines have not.
int WritePdf(long paragraphs, const char* file) {
    HPDF_Doc document = HPDF_New(nullptr, nullptr);
    HPDF_SetCompressionMode(document, HPDF_COMP_NONE);
    HPDF_Font plain = HPDF_GetFont(document, "Times-Roman", nullptr);
    HPDF_Font bold = HPDF_GetFont(document, "Times-Bold", nullptr);
    HPDF_Page page = nullptr;
    float y = 0;
    const auto next = [&] {
        if (page == nullptr || y < 50) {
            if (page != nullptr) HPDF_Page_EndText(page);
            page = HPDF_AddPage(document);
            HPDF_Page_SetSize(page, HPDF_PAGE_SIZE_A4, HPDF_PAGE_PORTRAIT);
            HPDF_Page_BeginText(page);
            y = 800;
        }
        y -= 14;
    };
    const auto show = [&](float x, HPDF_Font font, float red, const char* text) {
        HPDF_Page_SetFontAndSize(page, font, 12);
        HPDF_Page_SetRGBFill(page, red, 0, 0);
        HPDF_Page_TextOut(page, x, y, text);
    };
    for (long i = 1; i <= paragraphs; ++i) {
        next();
        show(36, plain, 0, Numbered("Line ", i, " plain run, ").c_str());
        show(156, bold, 0, "bold run of this one, ");
        show(276, plain, 0.78F, "red end of para.");
        if (i % 10 != 0) continue;
        next();
        for (int cell = 0; cell < 4; ++cell)
            show(36 + 113 * static_cast<float>(cell), plain, 0, Numbered("Cell ", i, Cells[cell]).c_str());
    }
    if (page != nullptr) HPDF_Page_EndText(page);
    const bool written = HPDF_SaveToFile(document, file) == HPDF_OK;
    HPDF_Free(document);
    return written ? 0 : 1;
}

}  // namespace

int main(int argc, char** argv) {
    const std::string_view kind = argc == 4 ? argv[1] : "";
    const long paragraphs = argc == 4 ? std::atol(argv[2]) : 0;
    if (kind == "xlsx") return WriteWorkbook(paragraphs, argv[3]);
    if (kind == "pdf") return WritePdf(paragraphs, argv[3]);
    std::fputs("usage: draftwick_peers xlsx|pdf PARAGRAPHS FILE\n", stderr);
    return 2;
}
