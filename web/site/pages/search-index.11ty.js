// What the search looks through, as a script: pages opened from files can fetch nothing.
export const data = { permalink: 'search-index.js', eleventyExcludeFromCollections: true };

export function render({ calvex, guides }) {
  const ofMembers = calvex.members.map(member => ({
    title: member.name,
    url: member.url,
    kind: 'member',
    words: member.sentence,
    text: [
      member.notes,
      member.other,
      ...member.given.map(input => input.words),
      ...member.answered.map(output => output.words),
    ].join(' '),
  }));
  const ofGuides = guides.flatMap(guide =>
    guide.sections.map(section => ({
      title: section.title,
      url: section.level === 1 ? guide.url : `${guide.url}#${section.slug}`,
      kind: guide.title,
      words: section.text.slice(0, 160),
      text: section.text,
    })),
  );
  const ofUnits = calvex.groups.map(group => ({
    title: group.name,
    url: `units.html#u${group.number}`,
    kind: 'units',
    words: group.notice,
    text: [...group.keywords, ...group.units.map(unit => unit.name)].join(' '),
  }));
  const ofMessages = calvex.messages.map(message => ({
    title: `Message ${message.number}`,
    url: `messages.html#m${message.number}`,
    kind: 'messages',
    words: message.text,
    text: message.said
      .slice(0, 1)
      .map(({ message: { text, cause } }) => `${text} ${cause}`)
      .join(' '),
  }));
  return `globalThis.searched=${JSON.stringify([...ofMembers, ...ofGuides, ...ofUnits, ...ofMessages])};`;
}
