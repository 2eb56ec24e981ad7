// Guides in Markdown as HTML: links between sources become links between pages, and what a link shows
// or names beside them is noted for copying.
import { existsSync } from 'node:fs';
import { posix } from 'node:path';

import { members } from 'calvex';
import MarkdownIt from 'markdown-it';
import anchor from 'markdown-it-anchor';

import { root } from './places.mjs';

const names = new Set(members.map(member => member.name));

/** Files of the checkout that pages show or offer, with their places in the site. */
export const copied = new Map();

/** The address of a link from a source; all pages of guides lie in one folder. */
function address(href, source, pages) {
  if (/^([a-z]+:|#)/.test(href)) return href;
  const [path, fragment] = href.split('#');
  const target = posix.join(posix.dirname(source), path).replace(/\/$/, '');
  const page = pages.get(target);
  if (page) return fragment ? `./${page}#${fragment}` : `./${page}`;
  if (!existsSync(root + target)) throw new Error(`${source} links to ${href}, which is not there`);
  const shown = /\.(png|svg)$/.test(target);
  const place = `files/${posix.basename(target)}${shown ? '' : '.txt'}`;
  copied.set(target, place);
  return `./${place}`;
}

const isEmptyHeader = (tokens, i) => tokens[i].type === 'th_open' && tokens[i + 1].content === '';

/** Tables: no header where all its cells are empty, no header cell that is. */
function tidyTables(tokens) {
  const kept = [];
  for (let i = 0; i < tokens.length; ++i) {
    if (tokens[i].type === 'thead_open') {
      const end = tokens.findIndex((token, j) => j > i && token.type === 'thead_close');
      const cells = tokens.slice(i, end).filter(token => token.type === 'inline');
      if (cells.every(cell => cell.content === '')) {
        i = end;
        continue;
      }
    }
    if (isEmptyHeader(tokens, i)) {
      tokens[i].tag = tokens[i + 2].tag = 'td';
    }
    kept.push(tokens[i]);
  }
  return kept;
}

/** A heading's name in links, as the places where the guides are read as they are make it. */
const slug = title =>
  title
    .toLowerCase()
    .replace(/[^\p{L}\p{N}\s_-]/gu, '')
    .trim()
    .replace(/\s/g, '-');

function parser(source, pages, headings) {
  const markdown = new MarkdownIt({ html: false });
  markdown.use(anchor, {
    tabIndex: false,
    slugify: slug,
    callback: (token, { slug: name, title }) =>
      headings.push({ level: Number(token.tag[1]), slug: name, title }),
  });
  markdown.core.ruler.push('site', state => {
    state.tokens = tidyTables(state.tokens);
    for (const { children } of state.tokens) {
      for (const token of children ?? []) {
        const name = token.type === 'image' ? 'src' : 'href';
        const at = token.attrIndex(name);
        if (at >= 0) token.attrs[at][1] = address(token.attrs[at][1], source, pages);
      }
    }
  });
  // A member that is named leads to its page.
  markdown.renderer.rules.code_inline = (tokens, i) => {
    const text = markdown.utils.escapeHtml(tokens[i].content);
    const isLinked =
      tokens
        .slice(0, i)
        .reduce(
          (depth, { nesting, type }) => (type.startsWith('link_') ? depth + nesting : depth),
          0,
        ) > 0;
    return !names.has(text) || isLinked
      ? `<code>${text}</code>`
      : `<a href="./members/${text}.html"><code>${text}</code></a>`;
  };
  // What may be wider than the page scrolls by itself, also by keyboard.
  markdown.renderer.rules.table_open = () =>
    '<div class="wide" tabindex="0" role="group" aria-label="Table"><table>\n';
  markdown.renderer.rules.table_close = () => '</table></div>\n';
  markdown.renderer.rules.fence = (tokens, i) =>
    `<pre tabindex="0"><code>${markdown.utils.escapeHtml(tokens[i].content)}</code></pre>\n`;
  return markdown;
}

/** The texts under each heading, for the search. */
function sectionsOf(tokens, headings) {
  const sections = [];
  for (const [i, token] of tokens.entries()) {
    if (tokens[i - 1]?.type === 'heading_open') {
      sections.push({ ...headings[sections.length], text: '' });
    } else if (token.type === 'fence') {
      sections.at(-1).text += `${token.content} `;
    } else if (token.type === 'inline') {
      sections.at(-1).text += `${token.children.map(child => child.content).join(' ')} `;
    }
  }
  return sections;
}

/** Title, headings below it, the HTML of both, and the sections with their texts. */
export function render(text, source, pages) {
  const headings = [];
  const markdown = parser(source, pages, headings);
  const tokens = markdown.parse(text.replaceAll(/^<!--.*-->\n/gm, ''), {});
  const html = part => markdown.renderer.render(part, markdown.options, {});
  const titleEnd = tokens.findIndex(token => token.type === 'heading_close') + 1;
  return {
    title: headings[0].title,
    headings: headings.slice(1),
    head: html(tokens.slice(0, titleEnd)),
    body: html(tokens.slice(titleEnd)),
    sections: sectionsOf(tokens, headings),
  };
}
