// The diagram as a picture of its own: SVG with its colours written in, or PNG.
import { save } from '../files.ts';

const styled = [
  'fill',
  'stroke',
  'stroke-width',
  'stroke-dasharray',
  'stroke-linecap',
  'opacity',
  'font-family',
  'font-size',
  'font-weight',
  'text-anchor',
  'paint-order',
];

/** The picture as it looks now, for programs that do not know the page's style. */
export function pictureOf(svg: SVGSVGElement): string {
  const copy = svg.cloneNode(true) as SVGSVGElement;
  const originals = [svg, ...svg.querySelectorAll('*')];
  const copies = [copy, ...copy.querySelectorAll('*')];
  originals.forEach((original, i) => {
    const style = getComputedStyle(original);
    for (const name of styled) copies[i]!.setAttribute(name, style.getPropertyValue(name));
    copies[i]!.removeAttribute('class');
  });
  const { width, height } = svg.getBoundingClientRect();
  copy.setAttribute('xmlns', 'http://www.w3.org/2000/svg');
  copy.setAttribute('width', String(Math.round(width)));
  copy.setAttribute('height', String(Math.round(height)));
  for (const name of ['tabindex', 'style', 'aria-describedby', 'aria-roledescription']) {
    copy.removeAttribute(name);
  }
  for (const shown of copy.querySelectorAll('[data-screen]')) shown.remove();
  const paper = document.createElementNS('http://www.w3.org/2000/svg', 'rect');
  paper.setAttribute('width', '100%');
  paper.setAttribute('height', '100%');
  paper.setAttribute('fill', getComputedStyle(document.body).backgroundColor);
  copy.insertBefore(paper, copy.querySelector('desc')?.nextSibling ?? copy.firstChild);
  return new XMLSerializer().serializeToString(copy);
}

export const saveSvg = (svg: SVGSVGElement, name: string) =>
  save(`${name}.svg`, 'image/svg+xml', pictureOf(svg));

/** Twice as fine as the screen. */
export async function savePng(svg: SVGSVGElement, name: string) {
  const { width, height } = svg.getBoundingClientRect();
  const image = new Image();
  image.src = `data:image/svg+xml;charset=utf-8,${encodeURIComponent(pictureOf(svg))}`;
  await image.decode();
  const canvas = document.createElement('canvas');
  [canvas.width, canvas.height] = [2 * Math.round(width), 2 * Math.round(height)];
  canvas.getContext('2d')!.drawImage(image, 0, 0, canvas.width, canvas.height);
  const blob = await new Promise<Blob | null>(done => canvas.toBlob(done, 'image/png'));
  if (blob) save(`${name}.png`, 'image/png', blob);
}
