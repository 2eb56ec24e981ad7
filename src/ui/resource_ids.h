// Numbers of the dialogs, their controls and icons, for the resource compiler as well as for C++.
#pragma once

// The number under which the loader looks for the manifest of a module that is not a program.
#define CALVEX_MANIFEST 2

// Its twenty lists are 1000 to 1019: the table in unit_selection.cpp tells what each edits.
#define CALVEX_UNIT_DIALOG 103
#define CALVEX_ATMOSPHERIC_PRESSURE 201
#define CALVEX_ATMOSPHERIC_UNIT 202
#define CALVEX_HELP 0xE146

#define CALVEX_TRACE_DIALOG 129
#define CALVEX_TRACE_TREE 1000
#define CALVEX_TRACE_LIST 1002
#define CALVEX_TRACE_LEVEL 1004

// Carried; nothing shows it.
#define CALVEX_OPTIONS_DIALOG 130

// The icons of the trace, in the order of their images.
#define CALVEX_ICON_ERROR 301
#define CALVEX_ICON_WARNING 302
#define CALVEX_ICON_NOTE 303
#define CALVEX_ICON_CALL 304
#define CALVEX_ICON_EXTERNAL_ERROR 305
