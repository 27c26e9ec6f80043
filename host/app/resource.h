#pragma once

// Shared with the resource compiler.
#define IDI_PROGRAM 1
#define IDM_MAIN 100
#define IDA_MAIN 101
#define IDM_OPEN 200
#define IDM_EXIT 201
#define IDM_EDIT_OBJECT 210
#define IDM_LEAVE_OBJECT 211
#define IDM_PLAY 212
#define IDM_ABOUT 220
