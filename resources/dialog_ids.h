#ifndef KX7_RESOURCES_DIALOG_IDS_H
#define KX7_RESOURCES_DIALOG_IDS_H

// Ids of dialogs and their controls, for the resource script and the code. Buttons with the system's own ids
// (IDOK, IDCANCEL, IDYES, IDNO) aren't listed.

// Messages.
#define IDD_VARD_MESSAGE 15211
#define IDC_VARD_MESSAGE_YES_TO_ALL 15400
#define IDC_VARD_MESSAGE_ICON 15768
#define IDC_VARD_MESSAGE_TEXT 15769

// Choice of the layers of a drawing.
#define IDD_LAYER_CHOICE 15210
#define IDC_LAYER_CHOICE_SELECT_ALL 15763
#define IDC_LAYER_CHOICE_LIST 15764
#define IDC_LAYER_CHOICE_LABEL 15765
#define IDC_LAYER_CHOICE_CLEAR 15766

// Icons of messages.
#define IDI_VARD_MESSAGE_PLAIN 15608
#define IDI_VARD_MESSAGE_QUESTION 15609
#define IDI_VARD_MESSAGE_WARNING 15610

#endif
