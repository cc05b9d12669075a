/// Template instantiations that every generated program uses. Compiling them anew costs a user half of the time that
/// he waits for a small program, so they are compiled once, into the object of the reporter that every program links.
///
/// POZHIL_SHARED_TEMPLATE says which side includes this file: it is `template` in the reporter's source and
/// `extern template` in the precompiled headers of generated programs. A program that is compiled without those headers
/// makes its own instantiations and links all the same.
///
/// The containers hand most of their work to classes inside the GNU library, which therefore stand here as well; other
/// libraries have none of them.

#ifdef __GLIBCXX__

#include "error_record.h"

#include <any>
#include <functional>
#include <map>
#include <memory>
#include <set>
#include <string>
#include <unordered_map>
#include <vector>

/// The base of all objects, defined in the emitted runtime. A shared pointer needs no more than its name.
struct _StructBase;

// clang-format off
// NOLINTBEGIN(modernize-use-transparent-functors): these are the functors that the programs' containers have
POZHIL_SHARED_TEMPLATE class std::vector<std::any>;
POZHIL_SHARED_TEMPLATE class std::vector<std::function<void()>>;

POZHIL_SHARED_TEMPLATE class std::map<std::string, std::any>;
POZHIL_SHARED_TEMPLATE class std::_Rb_tree<std::string, std::pair<const std::string, std::any>, std::_Select1st<std::pair<const std::string, std::any>>, std::less<std::string>>;
POZHIL_SHARED_TEMPLATE class std::map<std::string, std::string>;
POZHIL_SHARED_TEMPLATE class std::_Rb_tree<std::string, std::pair<const std::string, std::string>, std::_Select1st<std::pair<const std::string, std::string>>, std::less<std::string>>;
POZHIL_SHARED_TEMPLATE class std::map<std::string, bool>;
POZHIL_SHARED_TEMPLATE class std::_Rb_tree<std::string, std::pair<const std::string, bool>, std::_Select1st<std::pair<const std::string, bool>>, std::less<std::string>>;
POZHIL_SHARED_TEMPLATE class std::map<std::string, int>;
POZHIL_SHARED_TEMPLATE class std::_Rb_tree<std::string, std::pair<const std::string, int>, std::_Select1st<std::pair<const std::string, int>>, std::less<std::string>>;
POZHIL_SHARED_TEMPLATE class std::map<std::string, float>;
POZHIL_SHARED_TEMPLATE class std::_Rb_tree<std::string, std::pair<const std::string, float>, std::_Select1st<std::pair<const std::string, float>>, std::less<std::string>>;
POZHIL_SHARED_TEMPLATE class std::set<std::string>;
POZHIL_SHARED_TEMPLATE class std::_Rb_tree<std::string, std::string, std::_Identity<std::string>, std::less<std::string>>;

POZHIL_SHARED_TEMPLATE class std::unordered_map<std::string, பிழைதகவல்>;
POZHIL_SHARED_TEMPLATE class std::_Hashtable<std::string, std::pair<const std::string, பிழைதகவல்>, std::allocator<std::pair<const std::string, பிழைதகவல்>>, std::__detail::_Select1st, std::equal_to<std::string>, std::hash<std::string>, std::__detail::_Mod_range_hashing, std::__detail::_Default_ranged_hash, std::__detail::_Prime_rehash_policy, std::__detail::_Hashtable_traits<true, false, true>>;
POZHIL_SHARED_TEMPLATE class std::unordered_map<std::string, float (*)(float)>;
POZHIL_SHARED_TEMPLATE class std::_Hashtable<std::string, std::pair<const std::string, float (*)(float)>, std::allocator<std::pair<const std::string, float (*)(float)>>, std::__detail::_Select1st, std::equal_to<std::string>, std::hash<std::string>, std::__detail::_Mod_range_hashing, std::__detail::_Default_ranged_hash, std::__detail::_Prime_rehash_policy, std::__detail::_Hashtable_traits<true, false, true>>;

POZHIL_SHARED_TEMPLATE struct std::any::_Manager_internal<long long>;
POZHIL_SHARED_TEMPLATE struct std::any::_Manager_internal<int>;
POZHIL_SHARED_TEMPLATE struct std::any::_Manager_internal<double>;
POZHIL_SHARED_TEMPLATE struct std::any::_Manager_internal<char>;
POZHIL_SHARED_TEMPLATE struct std::any::_Manager_internal<bool>;
POZHIL_SHARED_TEMPLATE struct std::any::_Manager_external<long double>;
POZHIL_SHARED_TEMPLATE struct std::any::_Manager_external<std::string>;
POZHIL_SHARED_TEMPLATE struct std::any::_Manager_external<std::vector<std::any>>;
POZHIL_SHARED_TEMPLATE struct std::any::_Manager_external<std::map<std::string, std::any>>;

POZHIL_SHARED_TEMPLATE const long long* std::any_cast<long long>(const std::any*) noexcept;
POZHIL_SHARED_TEMPLATE const int* std::any_cast<int>(const std::any*) noexcept;
POZHIL_SHARED_TEMPLATE const double* std::any_cast<double>(const std::any*) noexcept;
POZHIL_SHARED_TEMPLATE const char* std::any_cast<char>(const std::any*) noexcept;
POZHIL_SHARED_TEMPLATE const bool* std::any_cast<bool>(const std::any*) noexcept;
POZHIL_SHARED_TEMPLATE const long double* std::any_cast<long double>(const std::any*) noexcept;
POZHIL_SHARED_TEMPLATE const std::string* std::any_cast<std::string>(const std::any*) noexcept;
POZHIL_SHARED_TEMPLATE const std::vector<std::any>* std::any_cast<std::vector<std::any>>(const std::any*) noexcept;
POZHIL_SHARED_TEMPLATE std::vector<std::any>* std::any_cast<std::vector<std::any>>(std::any*) noexcept;
POZHIL_SHARED_TEMPLATE const std::map<std::string, std::any>* std::any_cast<std::map<std::string, std::any>>(const std::any*) noexcept;
POZHIL_SHARED_TEMPLATE std::map<std::string, std::any>* std::any_cast<std::map<std::string, std::any>>(std::any*) noexcept;

// What expressions are made of: names of variables, values made of literals and results, casts of operands.
POZHIL_SHARED_TEMPLATE std::string::basic_string(const char*, const std::allocator<char>&);

POZHIL_SHARED_TEMPLATE std::any::any(long long&&);
POZHIL_SHARED_TEMPLATE std::any::any(long long&);
POZHIL_SHARED_TEMPLATE std::any::any(int&&);
POZHIL_SHARED_TEMPLATE std::any::any(bool&&);
POZHIL_SHARED_TEMPLATE std::any::any(long double&&);
POZHIL_SHARED_TEMPLATE std::any::any(std::string&&);
POZHIL_SHARED_TEMPLATE std::any::any(const std::string&);
POZHIL_SHARED_TEMPLATE std::any::any(std::vector<std::any>&&);
POZHIL_SHARED_TEMPLATE std::any::any(std::map<std::string, std::any>&&);
POZHIL_SHARED_TEMPLATE std::any& std::any::operator=(std::vector<std::any>&&);
POZHIL_SHARED_TEMPLATE std::any& std::any::operator=(std::map<std::string, std::any>&&);

POZHIL_SHARED_TEMPLATE long long std::any_cast<long long>(std::any&);
POZHIL_SHARED_TEMPLATE long long std::any_cast<long long>(std::any&&);
POZHIL_SHARED_TEMPLATE bool std::any_cast<bool>(std::any&);
POZHIL_SHARED_TEMPLATE bool std::any_cast<bool>(std::any&&);
POZHIL_SHARED_TEMPLATE std::string std::any_cast<std::string>(std::any&);
POZHIL_SHARED_TEMPLATE std::string std::any_cast<std::string>(std::any&&);
POZHIL_SHARED_TEMPLATE std::vector<std::any>& std::any_cast<std::vector<std::any>&>(std::any&);

// Objects and function values.
POZHIL_SHARED_TEMPLATE class std::shared_ptr<_StructBase>;
POZHIL_SHARED_TEMPLATE struct std::any::_Manager_external<std::shared_ptr<_StructBase>>;
POZHIL_SHARED_TEMPLATE const std::shared_ptr<_StructBase>* std::any_cast<std::shared_ptr<_StructBase>>(const std::any*) noexcept;
POZHIL_SHARED_TEMPLATE std::shared_ptr<_StructBase> std::any_cast<std::shared_ptr<_StructBase>>(std::any&);
POZHIL_SHARED_TEMPLATE std::shared_ptr<_StructBase> std::any_cast<std::shared_ptr<_StructBase>>(std::any&&);
POZHIL_SHARED_TEMPLATE std::any::any(std::shared_ptr<_StructBase>&&);
POZHIL_SHARED_TEMPLATE std::any::any(std::shared_ptr<_StructBase>&);

POZHIL_SHARED_TEMPLATE class std::function<std::any()>;
POZHIL_SHARED_TEMPLATE class std::function<std::any(std::any)>;
POZHIL_SHARED_TEMPLATE class std::function<std::any(std::any, std::any)>;
POZHIL_SHARED_TEMPLATE struct std::any::_Manager_external<std::function<std::any()>>;
POZHIL_SHARED_TEMPLATE struct std::any::_Manager_external<std::function<std::any(std::any)>>;
POZHIL_SHARED_TEMPLATE struct std::any::_Manager_external<std::function<std::any(std::any, std::any)>>;
POZHIL_SHARED_TEMPLATE std::function<std::any()> std::any_cast<std::function<std::any()>>(std::any&);
POZHIL_SHARED_TEMPLATE std::function<std::any()> std::any_cast<std::function<std::any()>>(std::any&&);
POZHIL_SHARED_TEMPLATE std::function<std::any(std::any)> std::any_cast<std::function<std::any(std::any)>>(std::any&);
POZHIL_SHARED_TEMPLATE std::function<std::any(std::any)> std::any_cast<std::function<std::any(std::any)>>(std::any&&);
POZHIL_SHARED_TEMPLATE std::function<std::any(std::any, std::any)> std::any_cast<std::function<std::any(std::any, std::any)>>(std::any&);
POZHIL_SHARED_TEMPLATE std::function<std::any(std::any, std::any)> std::any_cast<std::function<std::any(std::any, std::any)>>(std::any&&);
POZHIL_SHARED_TEMPLATE std::any::any(std::function<std::any()>&&);
POZHIL_SHARED_TEMPLATE std::any::any(std::function<std::any(std::any)>&&);
POZHIL_SHARED_TEMPLATE std::any::any(std::function<std::any(std::any, std::any)>&&);
// NOLINTEND(modernize-use-transparent-functors)
// clang-format on

#endif
