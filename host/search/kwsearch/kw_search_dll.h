#pragma once

// The search engine as a library of plain functions, for clients that load KwSearchDll.dll.
//
// Texts are UTF-8 and end with a NUL. Each thread has an engine of its own: what it sets, opens and finds is its own.
// Set the paths, open the engine, start a search or the list of categories, take the results one by one, close.
// A function that fails answers with one of the negative numbers below.

#ifdef __cplusplus
extern "C" {
#endif

enum KwStatus {
  kwNone = 0,  ///< done; from the functions that give results: there are no more
  kwOne = 1,   ///< a result was given
  kwDatabaseMissing = -1,
  kwDatabaseForeign = -2,
  kwDatabaseDamaged = -3,
  kwDatabaseBusy = -4,
  kwOutOfMemory = -5,
  kwDatabaseUnusable = -6,
  kwNotOpen = -7,        ///< the engine must be opened first
  kwBadArgument = -8,    ///< a null pointer where a text is needed, or a path that is no text
  kwBufferTooSmall = -9  ///< nothing was given; the same result comes with the next call
};

/// Gives `number` plus 1: a client sees that its calls arrive.
long __stdcall AddOneTest(long number);

/// Opens the database at the paths that were set. An engine that is open is opened anew.
long __stdcall OpenSearchEngine(void);
/// Drops everything, the paths too. Never fails.
long __stdcall CloseSearchEngine(void);

// The files' full paths. They count from the next OpenSearchEngine on. Thesauri may be left out, or be absent.
long __stdcall SetThesaurusPath(const char* file);
long __stdcall SetUserThesaurusPath(const char* file);
long __stdcall SetModelDataBasePath(const char* file);

// Each of these makes the results and answers with their number.

/// Models whose names and keywords have all words of a text, best first.
long __stdcall StartSearch(const char* words);
/// Up to `count` models of a random selection.
long __stdcall StartRandomSearch(long count);
/// The models of a sub-category, by name.
long __stdcall StartCategorySearch(const char* subcategory);

/// The next result: its name in `name`, which has room for `nameSize` bytes; its number; its flags, of which 0x20 marks
/// an animated model; and its closeness: 0 what was asked for, 1 found through a synonym, 2 by guessing at a misspelt
/// word. Pointers may be null where a value is not wanted.
long __stdcall GetNextResult(char* name, long nameSize, long* number, long* flags, long* closeness);

/// The first, and the next, pair of a category and one of its sub-categories, which is empty when the category has
/// none. Each text has room for `size` bytes.
long __stdcall GetFirstCategory(char* category, char* subcategory, long size);
long __stdcall GetNextCategory(char* category, char* subcategory, long size);

#ifdef __cplusplus
}
#endif
