#pragma once

#include "platform/win32/search_interface.h"

namespace nerida {

// A search component of prepared answers, for tests. What it is asked is what it does:
//   "nothing" finds nothing, "all" 32767 models, "too many" one more, "short" promises more than it gives,
//   "refuse" fails with a description, "fail" without one, "rewrite" rewrites the query and finds nothing;
//   "odd" finds four models whose names have whatever a name may have;
//   any other query finds three models: "Windmill" (3310), "Sailboat" (2105, animated) and "No such file" (9999).
// Its categories: "Buildings" with "Mills" and "Salt & Pepper", "Vehicles" with "Boats", "Nothing" without any. They
// fail where the environment variable PREPARED_SEARCH_REFUSES is set.
// The new object's one reference goes to the caller.
SearchInterface* createPreparedSearch();

}  // namespace nerida
