#pragma once
// The questions that the file, color, printer and folder dialogs answer, with the argument
// lists of clsVexloDialog. Filters are the program's "desc|pattern|desc|pattern|" strings.
#include <cstdint>
#include <string>

namespace vexlo::utilities {

struct OpenRequest {
    std::string FileName;  // proposed name
    std::string Filter;
    std::string DefaultExt;
    std::string FileTitle;
    bool FileMustExist = true;
    bool MultiSelect = false;
    bool ReadOnly = false;
    bool HideReadOnly = false;
    std::int32_t FilterIndex = 1;  // first entry shown, from 1
    std::string InitDir;           // empty: the current directory
    std::string DlgTitle;          // empty: the platform's title
    std::int32_t Owner = -1;
};

struct SaveRequest {
    std::string FileName;
    std::string Filter;
    std::string DefaultExt;
    std::string FileTitle;
    bool OverWritePrompt = true;
    std::int32_t FilterIndex = 1;
    std::string InitDir;
    std::string DlgTitle;
    std::int32_t Owner = -1;
};

struct PrinterRequest {
    bool DisablePageNumbers = true;
    bool DisableSelection = true;
    bool DisablePrintToFile = true;
    std::int32_t PrintRange = 0;  // 0 all, 1 pages, 2 selection
    std::int32_t FromPage = 1;
    std::int32_t ToPage = -1;
    std::int32_t Owner = 0;
};

// The four values that the last confirmed printer dialog left.
struct PrinterValues {
    std::int16_t Orientation = 1;  // DMORIENT_PORTRAIT
    std::int16_t Quality = 0;
    std::int16_t PaperSize = 9;    // DMPAPER_A4
    std::int16_t Copies = 1;
};

}  // namespace vexlo::utilities
