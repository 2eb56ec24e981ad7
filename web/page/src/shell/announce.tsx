// What a screen reader is told of a result, once one has stopped typing.
import { useEffect, useState } from 'preact/hooks';

export function Announce({ text }: { text: string }) {
  const [said, say] = useState('');
  useEffect(() => {
    const wait = setTimeout(() => say(text), 500);
    return () => clearTimeout(wait);
  }, [text]);
  return <output class="unseen">{said}</output>;
}
