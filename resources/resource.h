// Resource numbers of vulib.dll. Components load these through the
// resource chain (the host's executable first) or from the library's own
// module (VuGetInstanceHandle).
#pragma once

// Fatal-error prompts
#define IDS_VU_FATAL_ERROR 2002
#define IDS_VU_APPLICATION_TERMINATE 2003
// Condition dialog label
#define IDS_VU_CONDITION 2004
// Message box button captions
#define IDS_VU_OK 2007
#define IDS_VU_CANCEL 2008
#define IDS_VU_HELP 2009
#define IDS_VU_YES 2010
#define IDS_VU_NO 2011
#define IDS_VU_CLOSE 2012
#define IDS_VU_RETRY 2013
#define IDS_VU_ABORT 2014
#define IDS_VU_IGNORE 2015
#define IDS_VU_UNKNOWN 2016
// Check images of the check-box tree list boxes (see tree/CheckImages.h)
#define IDB_VU_CHECK_IMAGES 3336
// Tab beam bar: the splitter's resize cursor (scripts/gen_tab_cursors.py)
#define IDC_VU_TAB_SPLITTER 30980

// Layout engine: ladder-diagram icons and bitmaps (scripts/gen_layout_images.py)
#define IDI_VU_LAYOUT_CONTACT 4601
#define IDI_VU_LAYOUT_COIL 4602
#define IDI_VU_LAYOUT_LAMP 4603
#define IDB_VU_LAYOUT_TIMER 4612
#define IDB_VU_LAYOUT_PROBE 4613     // 8x4 test pattern: red | blue, bottom row magenta
#define IDB_VU_LAYOUT_PROBE_ALT 4614 // 5x3 green test pattern
// Dialogs: the save-options box, the message box and the condition-action
// dialog, with their controls
#define IDD_VU_SAVE_OPTIONS 2000
#define IDD_VU_MESSAGE_BOX 2001
#define IDD_VU_CONDITION_ACTION 3275
#define IDC_VU_SAVE_YESTOALL 3100
#define IDC_VU_SAVE_ICON 3101
#define IDC_VU_SAVE_PROMPT 3102
#define IDC_VU_MSGBOX_ICON 3120
#define IDC_VU_MSGBOX_TEXT 3121
#define IDC_VU_CONDITION_TEXT 3279
#define IDC_VU_CONDITION_LABEL 3280
#ifndef ID_HELP
#define ID_HELP 57670 // the framework's help command
#endif
