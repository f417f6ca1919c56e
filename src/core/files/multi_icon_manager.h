#pragma once
// MultiIconManager: the model of frmVexloMultiIcon, the dialog that shows the images of one
// multi-icon file. It holds the dialog's whole state and runs every step of it; questions,
// messages, the save and folder dialogs and the hourglass go through host::Host, so the whole
// dialog runs headless. The window builds its controls, forwards each click and each change
// of the list's selection to one method here, and redraws itself from the state.
//
// Two faces: Edit (add mode 0) picks the image to open, Add (1) shows what the target file
// holds before the current icon goes into it. Both remove an image from the file and save one
// or all images to single-icon files. The set read at activation stays in memory: Remove
// changes it and rewrites the file, Split Save and Save Single copy its bytes. Previews read
// the disk afresh, and Edit hands over the planes of the image last read by a preview.
#include <array>
#include <functional>
#include <string>

#include "core/alpha/alpha_array.h"
#include "core/files/icon_set.h"
#include "core/files/multi_icon_list.h"
#include "core/host/host.h"
#include "core/surface/surface.h"

namespace vexlo::files {

// Which of a face's buttons are enabled. Every button starts enabled; FillIconList sets them.
struct MultiIconButtons {
    bool Edit = true;        // cmdEdit, Edit face only
    bool Remove = true;      // cmdRemove of the face
    bool SplitSave = true;   // cmdSplitSave of the face
    bool SaveSingle = true;  // cmdSaveSingle of the face
    bool Save = true;        // cmdSaveAdd(0), Add face only
    bool SaveAs = true;      // cmdSaveAdd(1), Add face only
};

// Where a step puts the keyboard focus.
enum class MultiIconFocus { None, List, Save };

class MultiIconManager {
public:
    // fileSpec: MultiIconFileSpec; addMode: MultiIconAddMode, 0 Edit and 1 Add (anything else
    // is Edit); programDir: the folder where the folder dialog of Split Save starts.
    MultiIconManager(host::Host& host, std::string fileSpec, int addMode, std::string programDir = {});

    // The Add face's icon to add (PicCurrIcon, a copy on gray) and its description
    // (lblCurrIcon(1)), as the caller gives them before the dialog is shown.
    void SetIconToAdd(const surface::Surface& icon, std::string description);
    // Called after each change of the selection or a preview inside a step (Split Save walks
    // the list), so that a window can follow the step while it runs.
    void SetChangedHandler(std::function<void()> changed) { m_changed = std::move(changed); }

    // First activation: reads the file and fills the list with ListGuard set, then previews
    // the selected line; the Add face asks for the focus on Save. A file that can't be read
    // closes the dialog at once with an empty answer and no message: false. Runs only once.
    bool Activate();
    // The list's selection moved to position (a click or a key; -1 for none): the preview of
    // that line unless ListGuard is set.
    void Highlight(int position);
    // The buttons: cmdEdit, cmdRemove, cmdSplitSave, cmdSaveSingle and cmdClose of the face,
    // cmdSaveAdd(k) of the Add face (k 0 Save, 1 Save As).
    void Edit();
    void Remove();
    void SplitSave();
    void SaveSingle();
    void SaveAdd(int k);
    void Close();
    // The dialog unloads: the set in memory is released.
    void Unload() { m_set.Clear(); }

    // ---- State --------------------------------------------------------------------------
    const std::string& FileSpec() const { return m_fileSpec; }
    int AddFace() const { return m_addFace; }
    // "Edit Icon In Multi-Icon File" or "Add Icon To Existing Icon File".
    const char* Caption() const;
    bool ListGuard() const { return m_listGuard; }
    bool FirstActivation() const { return m_firstActivation; }
    // MultiIconChoice as it stands, and whether a step has closed the dialog.
    const std::string& Choice() const { return m_choice; }
    bool Closed() const { return m_closed; }
    // The set in memory (empty after a removal, until the file is read again, and for good
    // after a removal that couldn't write) and the list's lines with their images.
    const IconSet& Set() const { return m_set; }
    const MultiIconList& List() const { return m_list; }
    // The selected position of the list, -1 for none, and its item (null for none).
    int Selected() const { return m_selected; }
    const MultiIconListItem* SelectedItem() const { return m_list.At(m_selected); }
    MultiIconButtons Buttons() const { return m_buttons; }
    // The picture of picIconInFile(k): the last preview of face k on gray, at its true size.
    const surface::Surface& IconInFile(int k) const { return m_iconInFile[k == 1 ? 1 : 0]; }
    // picImageX, picMaskX: the planes of the image last read, and the alpha values it left.
    const surface::Surface& ImageX() const { return m_picImageX; }
    const surface::Surface& MaskX() const { return m_picMaskX; }
    const alpha::AlphaArray& IncomingAlpha() const { return m_incomingAlpha; }
    const surface::Surface& CurrIcon() const { return m_currIcon; }
    const std::string& CurrIconDescription() const { return m_currDescription; }
    // Where the last step asked for the focus; asking again answers None until a step asks.
    MultiIconFocus TakeFocus();

    // What the dialog leaves: the choice, and after Edit the planes at the chosen size with
    // the alpha values of the last read.
    host::MultiIconAnswer Answer() const;

private:
    bool ReadListedFile();
    void FillIconList();
    void Preview();
    // Selects position, as a click does: the preview runs unless ListGuard is set.
    void SelectAndPreview(int position);
    void CloseWith(const char* choice);
    void Tell(const std::string& text);
    bool Confirm(const std::string& question);
    void Changed();

    host::Host& m_host;
    std::string m_fileSpec;
    int m_addFace = 0;
    std::string m_programDir;
    bool m_listGuard = false;
    bool m_firstActivation = true;
    bool m_closed = false;
    std::string m_choice;
    IconSet m_set;
    MultiIconList m_list;
    int m_selected = -1;
    MultiIconButtons m_buttons;
    MultiIconFocus m_focus = MultiIconFocus::None;
    std::array<surface::Surface, 2> m_iconInFile;
    surface::Surface m_picImageX;
    surface::Surface m_picMaskX;
    alpha::AlphaArray m_incomingAlpha;
    surface::Surface m_currIcon;
    std::string m_currDescription;
    // Edit's hand-over: the planes at the chosen size.
    surface::Surface m_chosenImage;
    surface::Surface m_chosenMask;
    std::function<void()> m_changed;
};

}  // namespace vexlo::files
