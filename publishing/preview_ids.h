/* Dialogs and controls of the preview. They are numbered from 900, which no library's own dialogs are. */
#pragma once

#define IDD_PREVIEW 900
#define IDC_PREVIEW_PRINT 901
#define IDC_PREVIEW_FIRST 902
#define IDC_PREVIEW_PREVIOUS 903
#define IDC_PREVIEW_NEXT 904
#define IDC_PREVIEW_LAST 905
#define IDC_PREVIEW_NUMBER 906
#define IDC_PREVIEW_ZOOM 907
#define IDC_PREVIEW_PAGE 908
#define IDC_PREVIEW_SETUP 909

#define IDD_PRINTING 910
#define IDC_PRINTING_PAGE 911
