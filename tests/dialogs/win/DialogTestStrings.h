#pragma once
// String ids of the dialog tests' own string table.
#define IDS_T_FORMAT 41000
#define IDS_T_LONG 41001
#define IDS_T_YES 41002
#define IDS_T_NO 41003
#define IDS_T_YES_TO_ALL 41004
#define IDS_T_GROUP 41005
#define IDS_T_NAME 41006
#define IDS_T_TYPE 41007
#define IDS_T_WARN_OUTPUTS 41008
#define IDS_T_WARN_FORCES 41009
#define IDS_T_MISSING 41999 // not in the table
