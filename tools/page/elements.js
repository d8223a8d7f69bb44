/** A new element with properties, among them `attributes`, and children; a string is text, never markup. */
function element(name, properties = {}, ...children) {
  const { attributes = {}, ...others } = properties;
  const made = Object.assign(document.createElement(name), others);
  for (const [attribute, value] of Object.entries(attributes)) made.setAttribute(attribute, value);
  made.append(...children);
  return made;
}

/** A key or a call, which may be broken into lines behind its underscores. */
function breakable(name) {
  return name.split(/(?<=_)/).flatMap((part) => [part, element("wbr")]);
}
