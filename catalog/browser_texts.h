#pragma once

namespace nerida {

// Texts that the catalog shows and, where a user leaves or types them, understands.
inline constexpr const char* searchPrompt = "Enter Keyword(s) for Model Search";
inline constexpr const char* surpriseQuery = ":Surprise Me";
inline constexpr const char* surpriseCaption = "Surprise Me";
inline constexpr const char* previousSearch = "Previous Search";  // stands where no search has been made yet

}  // namespace nerida
