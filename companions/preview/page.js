// The search field: shows the papers that have all words of it.
"use strict";
const field = document.querySelector("input");
const count = document.querySelector("output");

// Without accents, and in small letters: who searches types what is quickest.
const plain = text => text.normalize("NFD").replace(/\p{M}/gu, "").toLowerCase();
const textOf = article => plain(Array.from(article.querySelectorAll("h2, p, pre, li"),
    part => part.textContent).join(" "));
const papers = Array.from(document.querySelectorAll("article"),
    article => ({ article, text: textOf(article) }));

function search() {
    const words = plain(field.value).split(/\s+/).filter(word => word !== "");
    let shown = 0;
    for (const { article, text } of papers) {
        article.hidden = !words.every(word => text.includes(word));
        shown += article.hidden ? 0 : 1;
    }
    count.textContent = words.length === 0 ? "" : `${shown} of ${papers.length}`;
}

field.addEventListener("input", search);
field.parentElement.hidden = false;
search();
