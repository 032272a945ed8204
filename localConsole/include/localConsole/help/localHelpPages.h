// A book of HTML pages made from one JSON text: a page for each topic, class and method, with links
// between them by key. Pages are held in a value table and never read from disk as HTML.
//
// The JSON is an object with texts under "main", "console" and "remarks" and a table of classes
// under "class"; a class has "text" and a table "method"; a method has nameEn, nameRu, syntax,
// parameter, returnValue, description, example and seeAlso. Texts go into the pages as they stand
// and may hold HTML. What should be a table and is none is passed over, and so is a method of that
// kind.
//
// A key begins with "#": "#main", "#class:X", "#class:X:method:Y".
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

#include "localInterpretatorUTF8/container/localValueTable.h"

class localValueList;

class localHelpPages {
public:
    // Columns of the table, 0-based.
    enum Column : std::size_t { key, html, nameEn, nameRu };

    localHelpPages();

    // Makes the pages of a text in the place of those before. False for a text that is no JSON,
    // with the reader's lines on the standard output stream; the pages stay as they were then.
    bool parseHelpFromJson(const std::u16string& text);

    // Makes a page of each item in the place of those before: its value is the whole HTML, its
    // presentation the name of the page, to which "#" is put for a key.
    void pagesFromList(const localValueList& list);

    // The whole HTML of the first page with that key; empty when there is none.
    std::u16string page(std::u16string_view pageKey) const;

    // The key that a link leads to: the link itself, but in pages from a list, which know each
    // other by name ("main.htm"), with "#" in front.
    std::u16string keyOfLink(std::u16string_view link) const;

    // A page that links to every page.
    std::u16string allPages() const;

    // The text around which a page stands that consists of nothing but a text.
    static std::u16string simplePage(std::u16string_view text);

    const localValueTable& table() const { return pages_; }

private:
    void clear();
    void add(const std::u16string& pageKey, const std::u16string& text,
             const std::u16string& english, const std::u16string& russian);
    void addClass(const std::u16string& name, const localValueTable& members);
    void addMethod(const std::u16string& className, const std::u16string& method,
                   const localValueTable& members);

    localValueTable pages_;
    bool linksAreNames_ = false;
};
