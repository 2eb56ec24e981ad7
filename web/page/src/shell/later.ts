// What may come a moment later, so that the first numbers are not kept waiting.
import { useEffect, useState } from 'preact/hooks';

export const afterPaint = (deed: () => void) => requestAnimationFrame(() => setTimeout(deed));

let painted = false;

/** False until the page has been painted once. */
export function useLater(): boolean {
  const [later, set] = useState(painted);
  useEffect(() => {
    if (!later) afterPaint(() => set((painted = true)));
  }, []);
  return later;
}
